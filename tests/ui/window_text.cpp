#include "tests/ui/window_text.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QtWidgets>

#include "tests/support/clipping.h"

namespace cellora {

namespace {

double Round(double dblNumber) {
    return std::round(dblNumber * 100) / 100;
}

QString AsText(QRectF rect) {
    return Join(Round(rect.x()), ',', Round(rect.y()), ' ', Round(rect.width()), 'x',
                Round(rect.height()));
}

QString AsText(const QColor& color) {
    return color.isValid() ? color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb)
                           : QStringLiteral("none");
}

/// Size, inked part and mean colour.
QString AsText(const QPixmap& pixmap) {
    static QHash<qint64, QString> known;
    QString& strText = known[pixmap.cacheKey()];
    if (!strText.isEmpty())
        return strText;
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    QRect inked;
    qint64 sums[4] = {};
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QPoint place(i % image.width(), i / image.width());
        const QRgb color = image.pixel(place);
        if (qAlpha(color) == 0)
            continue;
        inked |= QRect(place, QSize(1, 1));
        const int parts[] = {qRed(color), qGreen(color), qBlue(color), 255};
        for (int k = 0; k < 4; ++k)
            sums[k] += parts[k] * qAlpha(color) / 255;
    }
    const auto GetMean = [&](int i) { return int(sums[i] * 255 / std::max<qint64>(sums[3], 1)); };
    const qint64 lngPixels = std::max(image.width() * image.height(), 1);
    strText = Join("picture ", image.width(), 'x', image.height(), '@', pixmap.devicePixelRatio(),
                   " inked ", AsText(QRectF(inked)), " by ", sums[3] * 100 / 255 / lngPixels, " % ",
                   AsText(QColor(GetMean(0), GetMean(1), GetMean(2))));
    return strText;
}

QString AsText(const QFont& font) {
    return Join(font.pixelSize(), "px", font.bold() ? " bold" : "",
                font.underline() ? " underlined" : "");
}

/// The colours that differ from those around.
QString AsText(const QPalette& palette, const QPalette& usual) {
    QStringList colors;
    for (int i = 0; i < 2 * QPalette::NColorRoles; ++i) {
        const auto group = i % 2 == 0 ? QPalette::Active : QPalette::Disabled;
        const auto role = static_cast<QPalette::ColorRole>(i / 2);
        if (palette.color(group, role) != usual.color(group, role))
            colors << Join(QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(role), ' ',
                           AsText(palette.color(group, role)));
    }
    return colors.join(QLatin1String(", "));
}

QString AsText(const QCursor& cursor) {
    if (cursor.shape() != Qt::BitmapCursor)
        return QVariant::fromValue(cursor.shape()).toString();
    return Join(cursor.hotSpot().x(), ',', cursor.hotSpot().y(), ' ', AsText(cursor.pixmap()));
}

QString AsText(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::QFont:
        return AsText(value.value<QFont>());
    case QMetaType::QCursor:
        return AsText(value.value<QCursor>());
    case QMetaType::QPixmap:
        return AsText(value.value<QPixmap>());
    case QMetaType::QIcon: {
        const QIcon icon = value.value<QIcon>();
        return icon.isNull() ? QString()
                             : Join(AsText(icon.pixmap({24, 24}, 1.0)), ", disabled ",
                                    AsText(icon.pixmap({24, 24}, 1.0, QIcon::Disabled)));
    }
    case QMetaType::QSize:
        return AsText(QRectF(QPointF(), value.toSizeF())).section(u' ', 1);
    case QMetaType::QKeySequence:
    case QMetaType::QString:
        return u'"' + value.toString().replace(u'\n', QLatin1String("\\n")) + u'"';
    default:
        return value.toString();
    }
}

QString GetClass(const QObject& object) {
    return QString::fromLatin1(object.metaObject()->className()).remove(QLatin1String("cellora::"));
}

bool IsOwn(const QObject& object) {
    return GetClass(object) != QLatin1String(object.metaObject()->className());
}

/// They live as long as the process.
template <typename... Kinds>
const QMap<QString, QObject*>& MakePlain() {
    return *new QMap<QString, QObject*>{
        {QString::fromLatin1(Kinds::staticMetaObject.className()), new Kinds}...};
}

QString AsText(const QMetaProperty& property, const QObject& object) {
    const QVariant value = property.read(&object);
    return property.isFlagType()
               ? QString::fromLatin1(property.enumerator().valueToKeys(value.toInt()))
               : AsText(value);
}

struct Property {
    QMetaProperty property;
    QString strUsual;
};

/// The properties that the toolkit's kind has, as they are where nothing was done to them.
const QList<Property>& GetProperties(const QObject& object) {
    static const auto& plain =
        MakePlain<QWidget, QLabel, QPushButton, QToolButton, QCheckBox, QComboBox, QLineEdit,
                  QPlainTextEdit, QTabWidget, QTabBar, QTreeWidget, QGroupBox, QFrame, QToolBar,
                  QStatusBar, QMenuBar, QMenu, QGraphicsView, QDialog, QMessageBox, QMainWindow,
                  QFileDialog, QColorDialog, QAction>();
    static const QRegularExpression skipped(QStringLiteral(
        "[gG]eometry|^(x|y|pos|rect|size|frameSize|width|height|focus|isActiveWindow|objectName"
        "|sizePolicy|windowIcon|iconText|palette)$|children|[sS]izeHint|imum(Width|Height)"
        "|[sS]elect"));
    static QHash<QString, QList<Property>> known;
    const QMetaObject* meta = object.metaObject();
    while (!plain.contains(QString::fromLatin1(meta->className())))
        meta = meta->superClass();
    const QString strClass = QString::fromLatin1(meta->className());
    QList<Property>& properties = known[strClass];
    for (int i = properties.isEmpty() ? 0 : meta->propertyCount(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QString strName = QString::fromLatin1(property.name());
        if (!skipped.match(strName).hasMatch())
            properties.append({property, strName == QLatin1String("visible")
                                             ? QStringLiteral("true")
                                             : AsText(property, *plain[strClass])});
    }
    return properties;
}

class WindowText final {
public:
    explicit WindowText(QWidget& window) : window_(window) {
        Describe(window);
        if (const auto* const file = qobject_cast<const QFileDialog*>(&window))
            Tell(Join("looks in ", file->directory().path(), ' ', file->nameFilters().join(u'|')));
        else if (const auto* const color = qobject_cast<const QColorDialog*>(&window))
            Tell(QLatin1String("shows ") + AsText(color->currentColor()));
        else if (const auto* const print = qobject_cast<QPrintDialog*>(&window))
            Tell(Join("prints ", print->printer()->docName(), ", copies visible ",
                      print->findChild<QWidget*>(QStringLiteral("copies"))->isVisible()));
        else
            DescribeElements();
        lines << ofScreen_;
    }

    QStringList lines;

private:
    void DescribeElements() {
        for (QWidget* const widget : window_.findChildren<QWidget*>()) {
            const bool blnInside = GetClass(*widget).startsWith(QLatin1String("QComboBox")) &&
                                   !qobject_cast<QComboBox*>(widget);
            if (widget->window() == &window_ && !blnInside)
                Describe(*widget);
        }
        for (const QAction* const action : window_.findChildren<QAction*>()) {
            if (IsOwn(*action->parent()) && action->parent() != &window_)
                continue; // a popup tells of its entries itself
            if (action->text().isEmpty() && !action->isSeparator())
                continue; // the toolkit's own
            Name(*action);
            Tell(QLatin1String(action->isSeparator() ? "is a separator" : "is a command"));
            TellProperties(*action);
        }
        DescribeFocus();
        strName_ = QStringLiteral("clipped");
        for (const QString& strText : FindClippedTexts(window_))
            Tell(strText);
    }

    void Tell(const QString& strFact) { lines << strName_ + u'\t' + strFact; }

    /// Told after all else of the same element.
    void TellOfScreen(const QString& strFact) {
        // How large the print dialog is depends on what the system prints with.
        if (qobject_cast<const QPrintDialog*>(&window_))
            return;
        // The room that the text of a box needs depends on the folder it names.
        const auto* const box = qobject_cast<const QMessageBox*>(&window_);
        if (box == nullptr || !box->text().contains(u'/'))
            ofScreen_ << u'~' + strName_ + u'\t' + strFact;
    }

    static QString GetName(const QObject& object) {
        if (!object.objectName().isEmpty())
            return object.objectName();
        const QString strText = object.property("text").toString().section(u'\n', 0, 0);
        // Folders differ from run to run.
        const QString strShort =
            QString(strText).remove(QRegularExpression(QStringLiteral("(?<=\")[^\"]*/")));
        return Join("a ", GetClass(object), ' ', strShort.left(20)).trimmed();
    }

    void Name(const QObject& object) {
        lines << std::exchange(ofScreen_, {});
        strName_ = GetName(object);
        if (const int intNamesakes = ++names_[strName_]; intNamesakes > 1)
            strName_ += u'#' + QString::number(intNamesakes);
    }

    void TellProperties(const QObject& object) {
        static const QRegularExpression ofScreen(
            QStringLiteral("^wordWrap|imumSize |Diag|picture"));
        // Whether there is anything to scroll, and how far to zoom.
        const bool blnOfScreen = qobject_cast<const QAbstractSlider*>(&object) != nullptr;
        for (const auto& [property, strUsual] : GetProperties(object)) {
            const QString strText = AsText(property, object);
            const QString strFact = Join(property.name(), ' ', strText);
            if (strText != strUsual)
                blnOfScreen || ofScreen.match(strFact).hasMatch() ? TellOfScreen(strFact)
                                                                  : Tell(strFact);
        }
    }

    void Describe(QWidget& widget) {
        Name(widget);
        if (strName_.startsWith(QLatin1String("qt_scrollarea")) ||
            strName_.endsWith(QLatin1String("_ext_button")))
            return;
        Tell(QLatin1String("is a ") + GetClass(widget));
        TellProperties(widget);
        const QWidget* const around = widget.isWindow() ? nullptr : widget.parentWidget();
        const QString strColors =
            AsText(widget.palette(), around ? around->palette() : QApplication::palette());
        if (!strColors.isEmpty())
            Tell(QLatin1String("colors ") + strColors);
        TellOfScreen(QLatin1String("at ") + AsText(QRectF(widget.geometry())));
        if (widget.testAttribute(Qt::WA_KeyboardFocusChange))
            Tell(QStringLiteral("shows the focus"));
        if (widget.isWindow())
            Tell(Join("flags ", Qt::hex, widget.windowFlags().toInt(), ", ",
                      AsText(QVariant(widget.windowIcon()))));
        if (const auto* const label = qobject_cast<QLabel*>(&widget)) {
            if (label->foregroundRole() != QPalette::WindowText)
                Tell(QStringLiteral("in color %1").arg(label->foregroundRole()));
            if (label->buddy() != nullptr)
                Tell(QLatin1String("labels ") + label->buddy()->objectName());
        }
        if (const auto* const tab = qobject_cast<QTabBar*>(&widget))
            for (int i = 0; i < tab->count(); ++i)
                Tell(QLatin1String("tab ") + tab->tabText(i));
        if (const auto* const box = qobject_cast<QMessageBox*>(&widget);
            box && box->defaultButton())
            Tell(QLatin1String("default ") + box->defaultButton()->text());
        if (const auto* const box = qobject_cast<QComboBox*>(&widget))
            DescribeModel(*box->model());
        if (const auto* const view = qobject_cast<QTreeWidget*>(&widget)) {
            const QHeaderView& header = *view->header();
            for (int i = 0; i < view->columnCount(); ++i)
                Tell(Join("column ", header.sectionResizeMode(i), header.sectionsClickable(),
                          header.sectionsMovable(), header.stretchLastSection()));
            DescribeModel(*view->model());
        }
        if (widget.isVisible())
            DescribeSeen(widget);
        else if (qobject_cast<QGraphicsView*>(&widget))
            DescribeAccessible(*QAccessible::queryAccessibleInterface(&widget));
    }

    void DescribeSeen(QWidget& widget) {
        if (widget.focusPolicy() != Qt::NoFocus || IsOwn(widget))
            DescribeAccessible(*QAccessible::queryAccessibleInterface(&widget));
        const auto* const area = qobject_cast<QGraphicsView*>(&widget);
        if (area != nullptr)
            TellOfScreen(Join("shows ", AsText(area->sceneRect()), " under ",
                              AsText(area->viewport()->cursor())));
        if (!IsOwn(widget) || qobject_cast<QDialog*>(&widget) ||
            qobject_cast<QMainWindow*>(&widget))
            return;
        for (const QString& strDrawn : DescribePainting(area ? *area->viewport() : widget))
            TellOfScreen(QLatin1String("draws ") + strDrawn);
    }

    void DescribeModel(const QAbstractItemModel& model) {
        constexpr Qt::ItemDataRole aRoles[] = {Qt::DisplayRole,    Qt::ToolTipRole,
                                               Qt::FontRole,       Qt::TextAlignmentRole,
                                               Qt::DecorationRole, Qt::SizeHintRole};
        for (int r = -1; r < model.rowCount(); ++r) {
            for (int c = 0; c < model.columnCount(); ++c) {
                QString strFacts = QStringLiteral("row %1.%2").arg(r + 1).arg(c + 1);
                for (const auto role : aRoles) {
                    const QVariant value = r < 0 ? model.headerData(c, Qt::Horizontal, role)
                                                 : model.index(r, c).data(role);
                    strFacts += value.isValid() ? u' ' + AsText(value) : QString();
                }
                Tell(strFacts);
            }
        }
    }

    void DescribeAccessible(QAccessibleInterface& interface) {
        QString strFacts = QStringLiteral("is read as ") + Read(interface);
        for (const auto& [label, relation] : interface.relations(QAccessible::Label))
            strFacts += QLatin1String(" of ") + label->text(QAccessible::Name);
        if (interface.actionInterface() != nullptr && IsOwn(*interface.object()))
            strFacts += u' ' + interface.actionInterface()->actionNames().join(u'/');
        Tell(strFacts);
        if (interface.tableInterface() == nullptr || !IsOwn(*interface.object()))
            return;
        const auto& table = *interface.tableInterface();
        const bool blnBeyond = table.cellAt(9, 0) || table.cellAt(0, 9) || table.cellAt(-1, 0) ||
                               table.cellAt(0, -1) || interface.child(81) || interface.child(-1);
        Tell(Join("has ", table.rowCount(), " rows, ", table.columnCount(), " columns, ",
                  interface.childCount(), " cells, selected ", table.selectedCellCount(), ": ",
                  interface.indexOfChild(table.selectedCells().value(0)), ", beyond ", blnBeyond));
        for (int i = 0; i < interface.childCount(); ++i)
            DescribeCell(interface, *interface.child(i), i);
    }

    void DescribeCell(QAccessibleInterface& grid, QAccessibleInterface& cell, int i) {
        const auto& place = *cell.tableCellInterface();
        const bool blnFound =
            cell.isValid() && cell.parent() == &grid && place.table() == &grid &&
            grid.indexOfChild(&cell) == i &&
            grid.tableInterface()->cellAt(place.rowIndex(), place.columnIndex()) == &cell &&
            grid.childAt(cell.rect().center().x(), cell.rect().center().y()) == &cell &&
            place.rowExtent() * place.columnExtent() == 1;
        Tell(Join("cell ", i + 1, ' ', Read(cell), blnFound ? "" : " is lost",
                  place.isSelected() ? " is selected" : "",
                  grid.focusChild() == &cell ? " has the focus" : ""));
    }

    static QString Read(QAccessibleInterface& interface) {
        const QAccessible::State state = interface.state();
        const QString strText = interface.text(QAccessible::Description);
        const auto roles = QMetaEnum::fromType<QAccessible::Role>();
        return Join(interface.role() == QAccessible::Cell ? "" : roles.valueToKey(interface.role()),
                    " \"", interface.text(QAccessible::Name), '"', strText.isEmpty() ? "" : " ",
                    strText, state.disabled ? " disabled" : "", state.invisible ? " invisible" : "",
                    state.focusable ? " focusable" : "", state.checkable ? " checkable" : "",
                    state.checked ? " checked" : "", state.selectable ? " selectable" : "",
                    state.selected ? " selected" : "", state.focused ? " focused" : "");
    }

    void DescribeFocus() {
        strName_ = QStringLiteral("Tab");
        QWidget* widget = &window_;
        QStringList names;
        do {
            if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() &&
                widget->isEnabled() && widget->focusProxy() == nullptr)
                names << GetName(*widget);
            widget = widget->nextInFocusChain();
        } while (widget != &window_);
        Tell(QLatin1String("goes to ") + names.join(QLatin1String(", ")));
        if (window_.focusWidget() != nullptr)
            Tell(QLatin1String("is at ") + GetName(*window_.focusWidget()));
    }

    QWidget& window_;
    QString strName_;
    QStringList ofScreen_;
    QMap<QString, int> names_;
};

class PaintingEngine final : public QPaintEngine {
public:
    explicit PaintingEngine(QStringList& lines) : QPaintEngine(AllFeatures), lines_(lines) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}

    void drawRects(const QRectF* rects, int intCount) override {
        for (int i = 0; i < intCount; ++i)
            Shape(QStringLiteral("rectangle"), rects[i]);
    }
    void drawEllipse(const QRectF& rect) override { Shape(QStringLiteral("ellipse"), rect); }
    void drawPath(const QPainterPath& path) override {
        Shape(QStringLiteral("shape"), path.boundingRect());
    }
    void drawPolygon(const QPointF* points, int intCount, PolygonDrawMode) override {
        Shape(QStringLiteral("polygon"),
              QPolygonF(QList<QPointF>(points, points + intCount)).boundingRect());
    }
    void drawPixmap(const QRectF& rect, const QPixmap& pixmap, const QRectF&) override {
        lines_ << AsText(pixmap) + QLatin1String(" in ") + Place(rect);
    }
    void drawTextItem(const QPointF& point, const QTextItem& item) override {
        lines_ << Join('"', item.text(), "\" in ", AsText(painter()->pen().color()), " of ",
                       AsText(item.font()), " at ", Place({point, point}).section(u' ', 0, 0));
    }

private:
    QString Place(QRectF rect) const { return AsText(painter()->deviceTransform().mapRect(rect)); }

    void Shape(const QString& strShape, QRectF rect) {
        const QPen pen = painter()->pen();
        const QBrush brush = painter()->brush();
        QString strText = strShape + u' ' + Place(rect);
        if (pen.style() != Qt::NoPen)
            strText += Join(' ', Round(pen.widthF() * painter()->deviceTransform().m11()), " wide ",
                            AsText(pen.color()), ' ', Qt::hex, pen.style(), pen.capStyle(),
                            pen.joinStyle());
        if (brush.style() != Qt::NoBrush)
            strText += QLatin1String(" filled ") + AsText(brush.color());
        if (painter()->testRenderHint(QPainter::Antialiasing))
            strText += QLatin1String(" smooth");
        lines_ << strText;
    }

    QStringList& lines_;
};

class PaintingText final : public QPaintDevice {
public:
    explicit PaintingText(QSize size) : size_(size) {}

    QPaintEngine* paintEngine() const override { return &engine_; }

    QStringList lines;

protected:
    int metric(PaintDeviceMetric which) const override {
        const std::map<PaintDeviceMetric, int> metrics = {
            {PdmWidth, size_.width()},
            {PdmHeight, size_.height()},
            {PdmDevicePixelRatio, 1},
            {PdmDevicePixelRatioScaled, static_cast<int>(devicePixelRatioFScale())}};
        const auto found = metrics.find(which);
        return found != metrics.end() ? found->second : 96;
    }

private:
    QSize size_;
    mutable PaintingEngine engine_{lines};
};

} // namespace

QStringList DescribeWindow(QWidget& window) {
    return WindowText(window).lines;
}

QStringList DescribePainting(QWidget& widget) {
    PaintingText painting(widget.size());
    widget.render(&painting, QPoint(), QRegion(), {});
    return painting.lines;
}

} // namespace cellora
