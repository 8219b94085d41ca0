#pragma once

#include <QDialog>
#include <QIcon>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QPushButton;

namespace tessaline {

/// What an alert says and asks.
struct AlertContent {
    enum class Style { informational, warning };

    QString messageText;     ///< the title line
    QString informativeText; ///< what there is to say about it
    Style style = Style::informational;
    QIcon icon;                                ///< null: the style's own
    QStringList buttons{QStringLiteral("OK")}; ///< the first one is what Return presses
};

/// A question or message over one window, which takes no input until it is answered; the rest of
/// the program goes on. Escape answers with the last button.
class Alert : public QDialog {
    Q_OBJECT

public:
    /// Gets the index of the pressed button.
    using Completion = std::function<void(int button)>;

    /// Shows an alert over `window`, at once or, when that has one already, after that one. The
    /// alert owns itself and `accessory`, a control between text and buttons, which may be null.
    static Alert* beginSheet(QWidget& window, const AlertContent& content,
                             QWidget* accessory = nullptr, Completion completion = {});

protected:
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Alert(QWidget& window, const AlertContent& content, QWidget* accessory);
    void addTexts(const AlertContent& content, QWidget* accessory);
    void addButtons(const QStringList& titles);
    void finish(int result);
    void placeOverWindow();

    std::vector<QPushButton*> buttons; ///< in the order of the content
    Completion completion;
    bool answered = false;
};

} // namespace tessaline
