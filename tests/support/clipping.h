#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>

namespace cellora {

/// Collects the texts of a shown window that have less room than their font needs, or whose control
/// reaches out of its parent. It measures in the scale factor the program runs with.
class ClippingCheck final {
public:
    explicit ClippingCheck(const QWidget& window) : window_(window) {
        ForEach<QLabel>([this](const QLabel& label) { CheckLabel(label); });
        ForEach<QAbstractButton>([this](const QAbstractButton& button) { CheckButton(button); });
        ForEach<QComboBox>([this](const QComboBox& box) { CheckComboBox(box); });
        ForEach<QTabBar>([this](const QTabBar& bar) { CheckTabBar(bar); });
        ForEach<QHeaderView>([this](const QHeaderView& header) { CheckHeader(header); });
    }

    const QStringList& Found() const { return found_; }

private:
    template <typename Widget, typename Check>
    void ForEach(Check fnCheck) {
        for (const auto* const widget : window_.findChildren<const Widget*>()) {
            if (widget->isVisibleTo(&window_))
                fnCheck(*widget);
        }
    }

    void Expect(const QWidget& widget, const QString& strText, QSize needed, QSize room) {
        const bool blnFits =
            needed.width() <= room.width() && needed.height() <= room.height() &&
            (widget.isWindow() || widget.parentWidget()->rect().contains(widget.geometry()));
        if (!blnFits && !strText.isEmpty())
            found_ << QStringLiteral("%1 \"%2\" needs %3 x %4, has %5 x %6")
                          .arg(widget.objectName(), strText)
                          .arg(needed.width())
                          .arg(needed.height())
                          .arg(room.width())
                          .arg(room.height());
    }

    void CheckLabel(const QLabel& label) {
        const QRect rectRoom = label.contentsRect();
        QSize needed = label.sizeHint();
        if (label.textFormat() != Qt::RichText) {
            const int intWrap = label.wordWrap() ? Qt::TextWordWrap : 0;
            needed = label.fontMetrics()
                         .boundingRect(QRect(0, 0, rectRoom.width(), QWIDGETSIZE_MAX), intWrap,
                                       label.text())
                         .size();
        }
        Expect(label, label.text(), needed, rectRoom.size());
    }

    void CheckButton(const QAbstractButton& button) {
        QSize needed = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
        if (!button.icon().isNull())
            needed.rwidth() += button.iconSize().width();
        QStyleOptionButton option;
        option.initFrom(&button);
        QRect rectRoom = button.rect();
        if (qobject_cast<const QPushButton*>(&button))
            rectRoom =
                button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
        else
            needed.setWidth(button.sizeHint().width());
        Expect(button, button.text(), needed, rectRoom.size());
    }

    void CheckComboBox(const QComboBox& box) {
        QStyleOptionComboBox option;
        option.initFrom(&box);
        option.editable = box.isEditable();
        const QRect rectRoom = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                           QStyle::SC_ComboBoxEditField, &box);
        for (int i = 0; i < box.count(); ++i)
            Expect(box, box.itemText(i), box.fontMetrics().size(0, box.itemText(i)),
                   rectRoom.size());
    }

    void CheckTabBar(const QTabBar& bar) {
        for (int i = 0; i < bar.count(); ++i)
            Expect(bar, bar.tabText(i),
                   bar.fontMetrics().size(Qt::TextShowMnemonic, bar.tabText(i)),
                   bar.tabRect(i).intersected(bar.rect()).size());
    }

    void CheckHeader(const QHeaderView& header) {
        if (header.orientation() != Qt::Horizontal)
            return;
        for (int i = 0; i < header.count(); ++i)
            Expect(header, header.model()->headerData(i, Qt::Horizontal).toString(),
                   {header.sectionSizeHint(i), 0}, {header.sectionSize(i), header.height()});
    }

    const QWidget& window_;
    QStringList found_;
};

/// One line for each clipped text; empty when every text of the window fits.
inline std::string DescribeClippedTexts(const QWidget& window) {
    return ClippingCheck(window).Found().join(QLatin1Char('\n')).toStdString();
}

} // namespace cellora
