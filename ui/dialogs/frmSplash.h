#pragma once

#include <functional>

#include <QTimer>
#include <QWidget>

namespace cellora {

/// The splash window: first a picture, a second later the main window disabled behind it, another
/// second later the main window alone.
class frmSplash final : public QWidget {
    Q_OBJECT

public:
    /// What start-up does, handed in by `Main`. `fnLoad` makes the main window if there is none
    /// yet, disables it and shows it; `fnEnable` enables it; `fnStart` follows when the splash has
    /// closed, and may show modal windows.
    struct Steps {
        std::function<bool()> fnLoad; ///< false: there is nothing to go on with, the splash closes
        std::function<void()> fnEnable;
        std::function<void()> fnStart;
    };

    explicit frmSplash(Steps steps);

    QTimer& tmrSplash() { return tmrSplash_; }
    QTimer& tmrSplash2() { return tmrSplash2_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void AddLabel(const QString& strName, const QString& strText, QRect rect,
                  Qt::Alignment alignment);
    void ShowLabels();
    void tmrSplash_Timer();
    void tmrSplash2_Timer();

    Steps steps_;
    QTimer tmrSplash_;
    QTimer tmrSplash2_;
};

} // namespace cellora
