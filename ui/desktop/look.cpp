#include "ui/desktop/look.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QWidget>

#include "core/modCommon_Constants.h"
#include "ui/desktop/program_style.h"

namespace cellora {

namespace {

constexpr double dblTwipsPerPoint = 20;
constexpr double dblPixelsPerPoint = 96.0 / 72.0;

QFont MakePixelFont(double dblPixels, Weight weight) {
    QFont font;
    font.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                      QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    // Windows has the first as a font of pixels in a few sizes, none of them the board's.
    font.setStyleStrategy(QFont::ForceOutline);
    font.setPixelSize(qRound(dblPixels));
    font.setBold(weight == Weight::Bold);
    return font;
}

struct PaletteEntry {
    QPalette::ColorRole role;
    QRgb lngNormal;
    QRgb lngDisabled;
};

constexpr PaletteEntry aPalette[] = {
    {QPalette::Window, 0xFFF3F5F7, 0xFFF3F5F7},
    {QPalette::WindowText, 0xFF000000, 0xFF8C98A4},
    {QPalette::Base, 0xFFFFFFFF, 0xFFF3F5F7},
    {QPalette::AlternateBase, 0xFFF3F7FC, 0xFFF3F5F7},
    {QPalette::Text, 0xFF000000, 0xFF8C98A4},
    {QPalette::PlaceholderText, 0xFF6B7782, 0xFF8C98A4},
    {QPalette::Button, 0xFFEDF1F5, 0xFFEDF1F5},
    {QPalette::ButtonText, 0xFF000000, 0xFF8C98A4},
    {QPalette::BrightText, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::ToolTipBase, 0xFFFFF6D6, 0xFFFFF6D6},
    {QPalette::ToolTipText, 0xFF22303C, 0xFF22303C},
    {QPalette::Highlight, 0xFF2F6DB5, 0xFF8C98A4},
    {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Link, 0xFF1D4E89, 0xFF8C98A4},
    {QPalette::Light, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Midlight, 0xFFE2E8EE, 0xFFE2E8EE},
    {QPalette::Mid, 0xFFB7C1CB, 0xFFB7C1CB},
    {QPalette::Dark, 0xFF7E8A96, 0xFF7E8A96},
    {QPalette::Shadow, 0xFF5B6874, 0xFF5B6874},
};

void SetLook() {
    // The style fills in the colours.
    QApplication::setPalette(QPalette());
    QApplication::setFont(MakeFont(8));
}

/// A desktop's theme may give the application its own fonts and colours, at its start and at every
/// change of the player's settings; they are taken back at once.
class LookKeeper final : public QObject {
public:
    using QObject::QObject;

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && !blnKeeping_ &&
            (event->type() == QEvent::ApplicationFontChange ||
             event->type() == QEvent::ApplicationPaletteChange)) {
            const QScopedValueRollback keeping(blnKeeping_, true);
            SetLook();
        }
        return false;
    }

    bool blnKeeping_ = false;
};

} // namespace

QFont MakeFont(double dblPoints, Weight weight) {
    return MakePixelFont(dblPoints * dblPixelsPerPoint, weight);
}

QFont MakeSceneFont(double dblPoints, Weight weight) {
    return MakePixelFont(dblPoints * dblTwipsPerPoint, weight);
}

QPalette MakePalette() {
    QPalette palette;
    for (const PaletteEntry& entry : aPalette) {
        palette.setColor(entry.role, QColor::fromRgb(entry.lngNormal));
        palette.setColor(QPalette::Disabled, entry.role, QColor::fromRgb(entry.lngDisabled));
    }
    // Colours that count as a choice of the player's would give every control a palette of its own,
    // and the style remembers the pictures of each palette for good.
    palette.setResolveMask(0);
    return palette;
}

QColor ToQColor(std::int32_t lngColor) {
    return {lngColor & 0xFF, (lngColor >> 8) & 0xFF, (lngColor >> 16) & 0xFF};
}

std::int32_t ToColor(const QColor& color) {
    return MakeColor(color.red(), color.green(), color.blue());
}

void SetBackColor(QWidget& pane, std::int32_t lngColor) {
    const QColor color = ToQColor(lngColor);
    QPalette palette = pane.palette();
    if (pane.autoFillBackground() && palette.color(QPalette::Window) == color)
        return;
    palette.setColor(QPalette::Window, color);
    pane.setPalette(palette);
    pane.setAutoFillBackground(true);
}

void ApplyLook() {
    QApplication::setStyle(new ProgramStyle);
    SetLook();
    qApp->installEventFilter(new LookKeeper(qApp));
}

} // namespace cellora
