#include "ui/main/control_accessible.h"

#include <QAccessibleWidget>

#include "ui/dialogs/help_pictures.h"
#include "ui/dialogs/link_label.h"
#include "ui/main/number_selector.h"
#include "ui/main/statistics_pane.h"

namespace cellora {

namespace {

class AccessibleLink final : public QAccessibleWidget {
public:
    explicit AccessibleLink(LinkLabel& label)
        : QAccessibleWidget(&label, QAccessible::Link), label_(label) {}

    QString text(QAccessible::Text text) const override {
        return text == QAccessible::Name ? label_.text() : QAccessibleWidget::text(text);
    }
    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& strAction) override {
        if (strAction == pressAction())
            emit label_.clicked();
        else
            QAccessibleWidget::doAction(strAction);
    }

private:
    LinkLabel& label_;
};

QAccessibleInterface* MakeControl(const QString&, QObject* object) {
    if (auto* const label = qobject_cast<LinkLabel*>(object))
        return new AccessibleLink(*label);
    const bool blnPicture = qobject_cast<BoardPicture*>(object) != nullptr ||
                            qobject_cast<ButtonPicture*>(object) != nullptr;
    if (blnPicture)
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
    const bool blnPane = qobject_cast<StatisticsPane*>(object) != nullptr ||
                         qobject_cast<NumberSelector*>(object) != nullptr;
    if (blnPane)
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping);
    return nullptr;
}

} // namespace

void InstallControlAccessibility() {
    QAccessible::installFactory(MakeControl);
}

} // namespace cellora
