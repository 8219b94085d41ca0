#pragma once

#include "ui/reading/ReadingSection.h"

#include <QStringList>

class QLabel;

namespace tessaline {

class BezelButton;
class CodeView;
class Switch;

/// What the section has to ask of the program about the page for phones.
struct PageHelp {
    /// Its address with the secret; empty while it is not served.
    std::function<QString()> code = [] { return QString(); };
    /// Why it is not served though it is wanted; empty: it is, or was not tried.
    std::function<QString()> problem = [] { return QString(); };
    /// How many pages are connected.
    std::function<int()> pages = [] { return 0; };
    /// The addresses of this machine in its networks.
    std::function<QStringList()> addresses = [] { return QStringList(); };
    /// Ends all sessions and makes another secret.
    std::function<void()> disconnectAll = [] {};
};

/// The page by which phones drive the prompter: whether it is there, for whom, and the code that
/// lets them in.
class PageSection : public ReadingSection {
public:
    PageSection(ReadingSettings& shared, PageHelp help);

    void showOptions(const ReadingOptions& options) override;

private:
    void addReach();
    void addCode();
    void showAddresses(const ReadingOptions& options);
    QLabel* addText(const QString& identifier, const QString& text = {});

    const PageHelp help;
    Switch* pageSwitch;
    PopupButton* reachPopup = nullptr;
    QStringList addresses; ///< behind the popup's first item
    QLabel* networkHint = nullptr;
    QLabel* problemLabel = nullptr;
    QWidget* codePart = nullptr;
    CodeView* codeView = nullptr;
    QLabel* addressLabel = nullptr;
    QLabel* pagesLabel = nullptr;
};

} // namespace tessaline
