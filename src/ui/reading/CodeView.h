#pragma once

#include "ui/reading/QrCode.h"

#include <QWidget>

namespace tessaline {

/// Shows a text as a code for cameras, black on white whatever the look.
class CodeView : public QWidget {
public:
    /// Screen readers are told the name.
    explicit CodeView(const QString& accessibleName);

    void show(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString shown;
    QrCode code;
};

} // namespace tessaline
