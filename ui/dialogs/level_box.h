#pragma once

#include <QComboBox>

class QLabel;

namespace cellora {

/// The list of the 30 levels, of which it shows 12 at a time. PageUp and PageDown turn it by as
/// many rows, open or closed.
class LevelBox final : public QComboBox {
    Q_OBJECT

public:
    explicit LevelBox(QWidget* parent);

    /// Takes the label's name and its access key.
    void SetLabel(QLabel& label);

private:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace cellora
