#pragma once

#include <QObject>

class QKeyEvent;
class QMouseEvent;

namespace cellora {

/// While a key's command runs, keeps that key out of the windows that the command opens: what comes
/// of its being held down, and presses of it as quick as a double click. Such a press was meant for
/// the board. Every other key passes, and from its next press on so does this one.
class KeyEcho final : public QObject {
public:
    /// Of the press whose command is about to run.
    explicit KeyEcho(const QKeyEvent& press);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsEcho(const QKeyEvent& press) const;

    int intKey_;
    quint32 lngScanCode_;
    quint64 lngPressed_; ///< when last, in milliseconds
    quint64 lngReleased_ = 0;
    bool blnOver_ = false; ///< it was pressed anew
};

/// While a click's command runs, keeps the second click of a double click out of the modal windows
/// that the command opens, perhaps with a button in the click's very place.
class MouseEcho final : public QObject {
public:
    /// Of the click whose command is about to run.
    explicit MouseEcho(const QMouseEvent& release);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Qt::MouseButton button_;
    quint64 lngReleased_; ///< in milliseconds
};

} // namespace cellora
