#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <QWidget>

class QLabel;

namespace cellora {

struct StatisticsView;
struct View;

/// `picStatistics`: seven titles and values in a frame, on a faint picture.
class StatisticsPane final : public QWidget {
    Q_OBJECT

public:
    explicit StatisticsPane(QWidget* parent);

    /// Values, colours and visibility.
    void Mirror(const View& view);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row {
        QLabel* title;
        QLabel* value;
        std::string StatisticsView::*caption; ///< null where the value never changes
    };

    void AddRow(int intRow);
    void MirrorRows(const StatisticsView& statistics);
    void MirrorColors(const StatisticsView& statistics);

    std::vector<Row> rows_;
    std::int32_t lngFrameColor_ = 0;
};

} // namespace cellora
