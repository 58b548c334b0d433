#include "tests/ui/player.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QtWidgets>

#include "rules/recovery.h"
#include "tests/support/running_program.h"
#include "tests/ui/machine.h"
#include "tests/ui/window_text.h"

namespace cellora {

namespace {

/// The lines that are gone with "- " and those that came with "+ ", in their order.
QStringList Compare(QStringList before, QStringList after) {
    while (!before.isEmpty() && !after.isEmpty() && before.last() == after.last()) {
        before.removeLast();
        after.removeLast();
    }
    const auto intSame = std::ranges::mismatch(before, after).in1 - before.begin();
    before.remove(0, intSame);
    after.remove(0, intSame);
    // How many lines the rests of both have in common.
    const auto n = before.size();
    const auto m = after.size();
    QList<int> common((n + 1) * (m + 1));
    const auto Common = [&](qsizetype i, qsizetype j) -> int& { return common[i * (m + 1) + j]; };
    for (auto i = n - 1; i >= 0; --i)
        for (auto j = m - 1; j >= 0; --j)
            Common(i, j) = before[i] == after[j] ? Common(i + 1, j + 1) + 1
                                                 : std::max(Common(i + 1, j), Common(i, j + 1));
    QStringList lines;
    for (qsizetype i = 0, j = 0; i < n || j < m;) {
        if (i < n && j < m && before[i] == after[j]) {
            ++i;
            ++j;
        } else if (i < n && (j == m || Common(i + 1, j) >= Common(i, j + 1))) {
            lines << QLatin1String("- ") + before[i++];
        } else {
            lines << QLatin1String("+ ") + after[j++];
        }
    }
    return lines;
}

/// "NAME<tab>FACT" lines as "NAME: FACT; FACT".
QStringList Group(const QStringList& lines) {
    static const QRegularExpression alone(QStringLiteral("\t(draws|cell|row) "));
    QStringList groups;
    QString strLast;
    for (const QString& strLine : lines) {
        const QString strName = strLine.section(u'\t', 0, 0);
        if (strName == strLast && !alone.match(strLine).hasMatch())
            groups.last() += QLatin1String("; ") + strLine.section(u'\t', 1);
        else
            groups << QString(strLine).replace(u'\t', QLatin1String(": "));
        strLast = strName;
    }
    return groups;
}

Qt::MouseButton GetButton(const QStringList& words) {
    return words.contains(QLatin1String("right"))    ? Qt::RightButton
           : words.contains(QLatin1String("middle")) ? Qt::MiddleButton
           : words.contains(QLatin1String("side"))   ? Qt::BackButton
                                                     : Qt::LeftButton;
}

/// The place "X,Y" among the words.
QPoint GetPlace(const QStringList& words, QPoint otherwise) {
    const QStringList parts = words.filter(QStringLiteral(",")).value(0).split(u',');
    return parts.size() == 2 ? QPoint(parts[0].toInt(), parts[1].toInt()) : otherwise;
}

/// With escapes as in "\n" and "\u2028".
QString Unescape(const QString& strText) {
    return QJsonDocument::fromJson("[\"" + strText.toUtf8() + "\"]").array().at(0).toString();
}

using Window = std::pair<QString, QStringList>; ///< its name and what is told of it

std::vector<Window> DescribeWindows() {
    std::vector<Window> windows;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->inherits("QComboBoxPrivateContainer"))
            continue;
        QStringList lines = DescribeWindow(*window);
        // A window manager need not give the splash the keyboard.
        const QString strIt =
            window->windowType() == Qt::SplashScreen ? QStringLiteral("~it") : QStringLiteral("it");
        if (window->isActiveWindow())
            lines << strIt + QStringLiteral("\tis active");
        windows.emplace_back(lines.constFirst().section(u'\t', 0, 0), lines);
    }
    std::ranges::sort(windows);
    return windows;
}

class Player final : public QObject {
    Q_OBJECT

public:
    ~Player() override;

    QString Play(const QString& strScript);

private slots:
    // The verbs of the scripts.

    /// start [KEY=VALUE...]: the splash and all that follows it.
    void start(const QStringList& words) {
        for (const char* const strVariable : {"PATH", "HOME"})
            qputenv(strVariable, run_.folder.Path().c_str());
        run_.WriteSettings(words);
        run_.Launch();
        machine::Pass(2000);
    }

    void launch(const QStringList&) { run_.Launch(); }

    /// pass MILLISECONDS
    void pass(const QStringList& words) { machine::Pass(words.value(0).toInt()); }

    /// choose ENTRY
    void choose(const QStringList& words) { run_.Get<QAction>(words.value(0)).trigger(); }

    /// click CONTROL [right|middle|side] [X,Y], or the entry of a menu or the button so named
    void click(const QStringList& words) {
        QWidget& window = run_.GetActive();
        if (auto* const menu = qobject_cast<QMenu*>(&window)) {
            for (QAction* const action : menu->actions()) {
                if (action->isVisible() && action->text() == words.join(u' '))
                    return QTest::mouseClick(menu, Qt::LeftButton, {},
                                             menu->actionGeometry(action).center());
            }
        }
        for (auto* const button : window.findChildren<QAbstractButton*>()) {
            if (button->text() == words.join(u' '))
                return QTest::mouseClick(button, Qt::LeftButton);
        }
        auto& control = GetControl<QWidget>(window, words.value(0));
        QTest::mouseClick(&control, GetButton(words), {}, GetPlace(words, control.rect().center()));
    }

    /// cell NUMBER [right|middle|side] [X,Y]; the place is measured from the centre. A menu that is
    /// open hears of it first.
    void cell(const QStringList& words) {
        const QPoint place = run_.GetCenter(words.value(0).toInt()) + GetPlace(words, {});
        QTest::mouseClick(run_.window().windowHandle(), GetButton(words), {},
                          run_.grid().viewport()->mapTo(&run_.window(), place));
    }

    /// key KEYS..., "Ctrl+S" or "Num+5"
    void key(const QStringList& words) {
        for (const QString& strKey : words)
            run_.Press(QKeySequence(strKey)[0]);
    }

    /// send CONTROL KEY [CODE] [held]: a key at its time, by its place on the keyboard too.
    void send(const QStringList& words) {
        QWidget& control = run_.Get(words.value(0));
        const QKeyCombination keys = QKeySequence(words.value(1))[0];
        // A server of screens makes this of a key that is held down.
        if (words.contains(QLatin1String("held")))
            Send(control, QEvent::KeyRelease, keys);
        Send(control, QEvent::KeyPress, keys, words.value(2).toUInt());
    }

    void type(const QStringList& words) { QTest::keyClicks(run_.GetFocus(), words.join(u' ')); }

    void paste(const QStringList& words) {
        QGuiApplication::clipboard()->setText(Unescape(words.join(u' ')));
        run_.Press(Qt::CTRL | Qt::Key_V);
    }

    void focus(const QStringList& words) {
        GetControl<QWidget>(run_.GetActive(), words.value(0)).setFocus(Qt::TabFocusReason);
    }

    /// go CELL
    void go(const QStringList& words) { run_.MoveTo(words.value(0).toInt()); }

    /// fill CELL [wrong]: every empty cell, that one last.
    void fill(const QStringList& words) {
        const int intLast = words.value(0).toInt();
        for (int i = 1; i <= intCellCount; ++i) {
            if (i != intLast && !run_.game().cells[i].blnGiven)
                run_.Enter(i, run_.GetSolution(i));
        }
        run_.MoveTo(intLast);
        const int intDigit = run_.GetSolution(intLast);
        const int intEntry = words.contains(QLatin1String("wrong")) ? intDigit % 9 + 1 : intDigit;
        Send(run_.grid(), QEvent::KeyPress, static_cast<Qt::Key>(Qt::Key_0 + intEntry));
    }

    /// wheel CONTROL EIGHTHS [Ctrl]: of a degree, 120 a notch away from the player.
    void wheel(const QStringList& words) {
        QWidget& control = run_.Get(words.value(0));
        auto* const area = qobject_cast<QAbstractScrollArea*>(&control);
        const auto modifiers =
            words.contains(QLatin1String("Ctrl")) ? Qt::ControlModifier : Qt::NoModifier;
        const QPoint center = control.rect().center();
        QWheelEvent event(center, control.mapToGlobal(center), {}, {0, words.value(1).toInt()}, {},
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(area ? area->viewport() : &control, &event);
    }

    /// resize WIDTH HEIGHT
    void resize(const QStringList& words) {
        run_.window().resize(words.value(0).toInt(), words.value(1).toInt());
    }

    /// screen [WIDTH HEIGHT]: what it leaves to windows from now on.
    void screen(const QStringList& words) {
        machine::sizeScreen = {words.value(0).toInt(), words.value(1).toInt()};
        QScreen& screen = *run_.window().screen();
        emit screen.availableGeometryChanged(screen.availableGeometry());
    }

    /// file NAME
    void file(const QStringList& words) {
        run_.program->recovery()->Wait();
        const std::string strFile = words.value(0).toStdString();
        const bool blnThere = std::filesystem::exists(run_.folder.Path(strFile));
        const QString strText = QString::fromStdString(run_.folder.ReadBytes(strFile));
        machine::heard << (blnThere
                               ? QString(strText).remove(u'\r').replace(u'\n', QLatin1String(" | "))
                               : QStringLiteral("no such file"));
    }

    /// write NAME TEXT: a file that can be run.
    void write(const QStringList& words) {
        const std::string strFile = run_.folder.WriteBytes(
            words.value(0).toStdString(), Unescape(words.mid(1).join(u' ')).toStdString());
        std::filesystem::permissions(strFile, std::filesystem::perms::owner_all);
    }

    void remove(const QStringList& words) {
        std::filesystem::remove_all(run_.folder.Path(words.value(0).toStdString()));
    }

    /// hide FILE: a folder stands in its place until it is unhidden.
    void hide(const QStringList& words) {
        const std::string strFile = run_.folder.Path(words.value(0).toStdString());
        std::filesystem::rename(strFile, strFile + ".hidden");
        run_.folder.MakeFolder(words.value(0).toStdString() + "/inside");
    }

    void unhide(const QStringList& words) {
        const std::string strFile = run_.folder.Path(words.value(0).toStdString());
        std::filesystem::remove_all(strFile);
        std::filesystem::rename(strFile + ".hidden", strFile);
    }

    /// name FILE: in a file dialog.
    void name(const QStringList& words) {
        auto& edit = GetControl<QLineEdit>(run_.GetActive(), QStringLiteral("fileNameEdit"));
        edit.setText(QString::fromStdString(run_.folder.Path(words.value(0).toStdString())));
        QTest::keyClick(&edit, Qt::Key_Return);
    }

    /// color NAME: in a colour dialog.
    void color(const QStringList& words) {
        auto& dialog = dynamic_cast<QColorDialog&>(run_.GetActive());
        dialog.setCurrentColor(QColor(words.value(0)));
        dialog.accept();
    }

    /// act CELL|CONTROL ACTION: by assistive technology.
    void act(const QStringList& words) {
        const int intCell = words.value(0).toInt();
        QWidget& widget =
            intCell > 0 ? run_.grid() : GetControl<QWidget>(run_.GetActive(), words.value(0));
        auto* interface = QAccessible::queryAccessibleInterface(&widget);
        if (intCell > 0)
            interface = interface->child(intCell - 1);
        interface->actionInterface()->doAction(words.value(1));
    }

    /// menu CONTROL: the key that asks for a menu.
    void menu(const QStringList& words) {
        auto& control = GetControl<QWidget>(run_.GetActive(), words.value(0));
        QContextMenuEvent event(words.contains(QLatin1String("mouse"))
                                    ? QContextMenuEvent::Mouse
                                    : QContextMenuEvent::Keyboard,
                                {1, 1}, control.mapToGlobal(QPoint()));
        auto* const area = qobject_cast<QAbstractScrollArea*>(&control);
        QApplication::sendEvent(area ? area->viewport() : &control, &event);
    }

    /// session asks|hurries
    void session(const QStringList& words) {
        machine::blnSessionAsks = words.contains(QLatin1String("asks"));
        emit qApp->commitDataRequest(*qApp->findChild<QSessionManager*>());
    }

    /// printer none|ready|broken|refused, and in its dialog: printer copies NUMBER
    void printer(const QStringList& words) {
        machine::blnPrinterInstalled = !words.contains(QLatin1String("none"));
        machine::blnPrinterBroken = words.contains(QLatin1String("broken"));
        machine::blnServiceRefuses = words.contains(QLatin1String("refused"));
        auto* const dialog = qobject_cast<QPrintDialog*>(&run_.GetActive());
        if (dialog == nullptr)
            return;
        GetControl<QSpinBox>(*dialog, QStringLiteral("copies")).setValue(words.value(1).toInt());
        QObject::connect(dialog, &QDialog::accepted, [this, printer = dialog->printer()] {
            printer->setOutputFileName(QString::fromStdString(run_.folder.Path("grid.pdf")));
        });
    }

    void close(const QStringList&) { run_.GetActive().close(); }

private:
    static void Send(QWidget& control, QEvent::Type type, QKeyCombination keys,
                     quint32 lngCode = 0) {
        QKeyEvent event(type, keys.key(), keys.keyboardModifiers(), lngCode, 0, 0,
                        QKeySequence(keys).toString());
        event.setTimestamp(QDeadlineTimer::current().deadline());
        QApplication::sendEvent(&control, &event);
    }

    void Run(const QWidget* modal);
    void Report();
    void CheckScreen();
    bool eventFilter(QObject* watched, QEvent* event) override;

    RunningProgram run_;
    ModalWatch watch_{[this](QWidget& window) {
        Report();
        Run(&window);
    }};
    QStringList lines_; ///< of the script, as far as they are still to come
    QStringList told_;
    bool blnQuiet_ = false;
    int intPainted_ = 0;
    std::vector<Window> shown_;
};

Player::~Player() {
    while (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
}

QString Player::Play(const QString& strScript) {
    machine::Begin();
    lines_ = strScript.split(u'\n').filter(QRegularExpression(QStringLiteral("^[>#]")));
    Run(nullptr);
    return told_.join(u'\n') + u'\n';
}

void Player::Run(const QWidget* modal) {
    while (!lines_.isEmpty() && QApplication::activeModalWidget() == modal) {
        told_ << lines_.takeFirst();
        QStringList words = told_.last().split(u' ');
        if (words[0] == u'#')
            continue;
        blnQuiet_ = words.takeFirst() == QLatin1String(">>");
        try {
            const QByteArray strVerb = words.takeFirst().toLatin1();
            if (!QMetaObject::invokeMethod(this, strVerb.constData(), Q_ARG(QStringList, words)))
                throw std::runtime_error("unknown verb");
            Report();
        } catch (const std::exception& error) {
            told_ << QLatin1String("    FAILED: ") + QString::fromUtf8(error.what());
        }
    }
}

void Player::Report() {
    machine::Settle();
    if (run_.program && run_.program->mainWindow() && run_.window().TakesInput() &&
        run_.window().isVisible()) {
        // What time brings has to ask for the keyboard itself.
        if (!told_.last().contains(QLatin1String("> pass")))
            run_.Activate();
        machine::Settle();
        run_.grid().viewport()->installEventFilter(this);
    }
    if (intPainted_ > 0)
        machine::heard << Join("~", intPainted_, " pixels of the grid are painted");
    CheckScreen();
    const auto windows = DescribeWindows();
    const auto Find = [](const std::vector<Window>& among, const Window& window) {
        return std::ranges::find(among, window.first, &Window::first);
    };
    QStringList lines = std::exchange(machine::heard, {});
    for (const Window& window : shown_) {
        if (Find(windows, window) == windows.end())
            lines << window.first + QLatin1String(" is gone");
    }
    for (const Window& window : windows) {
        const auto before = Find(shown_, window);
        const bool blnNew = before == shown_.end();
        const QStringList changes =
            Group(blnNew ? window.second : Compare(before->second, window.second));
        if (!changes.isEmpty())
            lines << window.first + QLatin1String(blnNew ? " opens" : ":");
        for (const QString& strChange : changes)
            lines << QLatin1String("    ") + strChange;
    }
    shown_ = windows;
    intPainted_ = 0;
    const QString strFolder = QString::fromStdString(run_.folder.Path());
    for (const QString& strLine : blnQuiet_ ? QStringList() : lines)
        told_ << QLatin1String("    ") +
                     QString(strLine).replace(strFolder, QLatin1String("FOLDER"));
}

/// What was painted piece by piece must be what is painted afresh.
void Player::CheckScreen() {
    if (!machine::IsExact() || !run_.program || !run_.program->mainWindow())
        return;
    auto& picBorder = run_.Get(QStringLiteral("picBorder"));
    const QRect rect = picBorder.visibleRegion().boundingRect();
    if (rect.isEmpty())
        return;
    const QRect rectSeen(picBorder.mapTo(&run_.window(), rect.topLeft()), rect.size());
    const QPixmap screen = run_.window().screen()->grabWindow(run_.window().winId());
    const auto GetPixels = [](const QPixmap& pixmap) {
        return pixmap.toImage().convertToFormat(QImage::Format_RGB32);
    };
    if (GetPixels(screen.copy(rectSeen)) != GetPixels(picBorder.grab(rect)))
        machine::heard << QStringLiteral("THE SCREEN SHOWS SOMETHING ELSE");
}

bool Player::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        for (const QRect& rect : static_cast<QPaintEvent*>(event)->region())
            intPainted_ += rect.width() * rect.height();
    }
    return false;
}

} // namespace

QString PlayScript(const QString& strScript) {
    return Player().Play(strScript);
}

} // namespace cellora

#include "player.moc"
