#include "ui/main/control_accessible.h"

#include <QAccessibleWidget>

#include "ui/dialogs/help_pictures.h"
#include "ui/dialogs/link_label.h"
#include "ui/dialogs/picture_box.h"
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

template <typename... Kinds>
bool IsOneOf(QObject* object) {
    return ((qobject_cast<Kinds*>(object) != nullptr) || ...);
}

QAccessibleInterface* MakeControl(const QString&, QObject* object) {
    if (auto* const label = qobject_cast<LinkLabel*>(object))
        return new AccessibleLink(*label);
    if (IsOneOf<BoardPicture, ButtonPicture, PictureBox>(object))
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
    if (IsOneOf<StatisticsPane, NumberSelector>(object))
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping);
    return nullptr;
}

} // namespace

void InstallControlAccessibility() {
    QAccessible::installFactory(MakeControl);
}

} // namespace cellora
