#include "ui/controls/DefaultButton.h"

#include <QShortcut>

namespace tessaline {

DefaultButton::DefaultButton(const QString& title, QWidget& window) : BezelButton(title) {
    setDefault(true);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(key, &window), &QShortcut::activated, this, [this] { click(); });
}

} // namespace tessaline
