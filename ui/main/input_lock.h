#pragma once

#include <QObject>

class QWidget;

namespace cellora {

/// Keeps mouse and keyboard out of a window, which looks as if they were not, as long as it lives.
class InputLock final : public QObject {
public:
    /// The window outlives the lock.
    explicit InputLock(const QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QWidget& window_;
};

} // namespace cellora
