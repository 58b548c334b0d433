#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <QRectF>
#include <QWidget>

#include "ui/desktop/look.h"

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

    /// Lays the labels out for that zoom; 1 is the design's size. The pane's own place and size are
    /// the window's.
    void SetZoom(double dblZoom);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row {
        QLabel* title;
        QLabel* value;
        std::string StatisticsView::*caption; ///< null where the value never changes
    };

    struct LabelFont {
        double dblPoints;
        Weight weight;
    };

    /// As it is by design.
    struct PlacedLabel {
        QLabel* label;
        QRectF rectTwips;
        LabelFont font;
    };

    QLabel* AddLabel(const QString& strText, const QRectF& rectTwips, LabelFont font,
                     Qt::Alignment alignment);
    void AddRow(int intRow);
    void MirrorRows(const StatisticsView& statistics);
    void MirrorColors(const StatisticsView& statistics);
    void DrawHairlines(QPainter& painter) const;

    std::vector<PlacedLabel> labels_;
    std::vector<Row> rows_;
    double dblZoom_ = 1;
    std::int32_t lngFrameColor_ = 0;
};

} // namespace cellora
