#pragma once

#include "platform/Lifetime.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace tessaline {

class AppSettings;
class FileIcons;
class StatusDot;
class Switch;
struct Services;

/// The sources that can be switched on, and what Obsidian's plug-in is up to.
class IntegrationsSection : public QWidget {
    Q_OBJECT

public:
    /// Borrows everything.
    IntegrationsSection(const AppSettings& settings, const Services& services,
                        const FileIcons& icons, QWidget* parent = nullptr);

    /// Sets the Obsidian switch to what the settings say.
    void showSettings();

    /// Looks up what the plug-in is up to, if Obsidian is enabled, and shows it.
    void updateObsidianStatus();

    /// The same, a little later: files that are slow to read do not hold up the window.
    void refreshObsidianStatus();

    /// Installs the plug-in, tells the outcome in an alert and shows the new status.
    void reinstallObsidianPlugin();

Q_SIGNALS:
    /// The user switched Obsidian on or off.
    void obsidianToggled(bool on);

private:
    QWidget* createRow(QLabel* icon, const QString& name, Switch* toggle);
    QWidget* createStatusRow();
    QLabel* createObsidianIcon() const;
    bool isObsidianEnabled() const;
    void showPlugin(bool installed, bool enabled);

    Switch* clipboardToggle = nullptr;
    Switch* obsidianToggle = nullptr;
    StatusDot* obsidianStatusDot = nullptr;
    QLabel* obsidianStatusLabel = nullptr;
    QPushButton* obsidianConfigButton = nullptr;
    const AppSettings& settings;
    const Services& services;
    const FileIcons& icons;
    QWidget* statusRow = nullptr;
    bool isLookingUp = false;
    int updates = 0; ///< of the status, so far
    Lifetime lifetime;
};

} // namespace tessaline
