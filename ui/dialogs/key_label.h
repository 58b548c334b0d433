#pragma once

#include <QLabel>

namespace cellora {

/// What the player presses, as the Instructions name it: lines such as "Delete," or "Space - ". A
/// name of a key is drawn as its cap, that of a click beside a mouse whose button is down; the
/// punctuation after it stays plain. It is read as the text it was given.
class KeyLabel final : public QLabel {
    Q_OBJECT

public:
    enum class Device { Keyboard, Mouse };

    KeyLabel(const QString& strText, Device device);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Device device_;
};

} // namespace cellora
