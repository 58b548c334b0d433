#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace cellora {

/// The toolkit's own dialogs write down what was chosen in them when they go. Elsewhere that is a
/// file in the program's folder; on Windows it is the registry's "Software\QtProject", whatever
/// the program says. Made before such a dialog and gone after it, one of these leaves the registry
/// as it was.
class DialogTraces final {
public:
    DialogTraces();
    ~DialogTraces();
    DialogTraces(const DialogTraces&) = delete;
    DialogTraces& operator=(const DialogTraces&) = delete;

private:
    QMap<QString, QVariant> before_;
};

} // namespace cellora
