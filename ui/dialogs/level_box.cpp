#include "ui/dialogs/level_box.h"

#include <algorithm>

#include <QKeyEvent>
#include <QLabel>

#include "core/levels.h"
#include "core/modCommon_Constants.h"
#include "ui/desktop/text.h"

namespace cellora {

namespace {

constexpr int intPage = 12;

} // namespace

LevelBox::LevelBox(QWidget* parent) : QComboBox(parent) {
    setMaxVisibleItems(intPage);
    for (int intLevel = 1; intLevel <= intLevelCount; ++intLevel)
        addItem(ToQString(GetLevelName(intLevel)));
}

void LevelBox::SetLabel(QLabel& label) {
    setAccessibleName(label.text());
    label.setBuddy(this);
}

void LevelBox::keyPressEvent(QKeyEvent* event) {
    const int intKey = event->key();
    if (intKey != Qt::Key_PageUp && intKey != Qt::Key_PageDown) {
        QComboBox::keyPressEvent(event);
        return;
    }
    const int intStep = intKey == Qt::Key_PageUp ? -intPage : intPage;
    setCurrentIndex(std::clamp(currentIndex() + intStep, 0, count() - 1));
}

} // namespace cellora
