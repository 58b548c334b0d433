#pragma once

#include <QtWidgets>

namespace cellora {

/// The texts of a shown window that have less room than their font needs, or whose control reaches
/// out of its parent, in the scale factor the program runs with.
inline QStringList FindClippedTexts(const QWidget& window) {
    QStringList found;
    for (const auto* const widget : window.findChildren<const QWidget*>()) {
        if (!widget->isVisibleTo(&window) || widget->window() != &window)
            continue;
        const auto Expect = [&](const QString& strText, QSize needed, QSize room) {
            if (strText.isEmpty() || (needed.boundedTo(room) == needed &&
                                      widget->parentWidget()->rect().contains(widget->geometry())))
                return;
            found << widget->objectName() + QLatin1String(" shows too little of ") + strText;
        };
        const QFontMetrics metrics = widget->fontMetrics();
        const QSize room = widget->contentsRect().size();
        if (const auto* const label = qobject_cast<const QLabel*>(widget)) {
            const int intWrap = label->wordWrap() ? Qt::TextWordWrap : 0;
            const QRect most(0, 0, room.width(), QWIDGETSIZE_MAX);
            Expect(label->text(), metrics.boundingRect(most, intWrap, label->text()).size(), room);
        } else if (const auto* const button = qobject_cast<const QPushButton*>(widget)) {
            QStyleOptionButton option;
            option.initFrom(button);
            Expect(button->text(), metrics.size(Qt::TextShowMnemonic, button->text()),
                   button->style()->subElementRect(QStyle::SE_PushButtonContents, &option).size());
        } else if (const auto* const check = qobject_cast<const QCheckBox*>(widget)) {
            Expect(check->text(), {check->sizeHint().width(), 0}, room);
        } else if (const auto* const bar = qobject_cast<const QTabBar*>(widget)) {
            for (int i = 0; i < bar->count(); ++i)
                Expect(bar->tabText(i), metrics.size(Qt::TextShowMnemonic, bar->tabText(i)),
                       bar->tabRect(i).intersected(bar->rect()).size());
        }
    }
    return found;
}

} // namespace cellora
