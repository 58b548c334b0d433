#pragma once

#include <QStringList>
#include <QTextStream>

class QWidget;

namespace cellora {

/// Texts and numbers, one after the other.
template <typename... Parts>
QString Join(const Parts&... parts) {
    QString strText;
    QTextStream stream(&strText);
    (stream << ... << parts);
    return strText;
}

/// All that can be told of a window, a line for each fact: "NAME<tab>FACT". Facts that depend on
/// the screen begin with "~". Of a window of the toolkit's own only what the program chose.
QStringList DescribeWindow(QWidget& window);

/// What a widget paints, a line for each drawing in its order.
QStringList DescribePainting(QWidget& widget);

} // namespace cellora
