#pragma once

#include "settings/SourceType.h"
#include "ui/onboarding/Card.h"

#include <QIcon>

#include <functional>

class QLabel;

namespace tessaline {

class Switch;

/// One content source: what it is, a line on its state, and a switch for it.
class IntegrationToggleView : public Card {
    Q_OBJECT

public:
    /// A locked row's switch cannot be used. Fill the row with `setupUI` next.
    IntegrationToggleView(SourceType sourceType, bool isLocked, QWidget* parent = nullptr);

    /// Builds the row; call it once. Without an image the source's emoji stands in its place.
    void setupUI(bool isEnabled, const QString& statusText, const QIcon& iconImage);

    /// Shows another state.
    void showState(bool isEnabled, const QString& statusText);

    /// Called with the new state when the user switches.
    std::function<void(bool on)> onToggleChanged;

    const SourceType sourceType;
    const bool isLocked;

private:
    void toggleChanged();
    QWidget* createIcon(const QIcon& image) const;

    QLabel* titleLabel = nullptr;
    QLabel* statusLabel = nullptr;
    Switch* toggleSwitch = nullptr;
};

} // namespace tessaline
