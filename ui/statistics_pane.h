#pragma once

#include <optional>
#include <vector>

#include <QWidget>

#include "core/modCellora.h"

class QLabel;

namespace cellora {

/// `picStatistics`: seven titles and values in a frame, on a faint picture.
class StatisticsPane final : public QWidget {
    Q_OBJECT

public:
    explicit StatisticsPane(QWidget* parent);

    void Mirror(const Game& game);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row {
        QLabel* title;
        QLabel* value;
        const std::string Game::*caption;
    };

    void AddRow(int intRow);
    void MirrorColors(const Game& game);

    QLabel* lblStatistics_ = nullptr;
    std::vector<Row> rows_;
    Color lngFrame_ = lngColorWindowText;
    std::optional<Color> lngText_;
    std::optional<Color> lngBackColor_;
};

} // namespace cellora
