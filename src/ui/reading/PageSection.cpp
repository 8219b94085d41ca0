#include "ui/reading/PageSection.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "controls/Labels.h"
#include "ui/controls/BezelButton.h"
#include "ui/controls/LabelledRow.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Rows.h"
#include "ui/controls/Switch.h"
#include "ui/reading/CodeView.h"

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int partSpacing = 8;

QString pagesText(int pages) {
    if (pages == 0) return u"Scan the code with a phone or a tablet."_s;
    return pages == 1 ? u"1 page is connected."_s : u"%1 pages are connected."_s.arg(pages);
}

} // namespace

PageSection::PageSection(ReadingSettings& shared, PageHelp pageHelp)
    : ReadingSection(shared)
    , help(std::move(pageHelp))
    , pageSwitch(new Switch(u"Page for Phones and Tablets"_s)) {
    pageSwitch->setObjectName(u"reading_pageSwitch"_s);
    connect(pageSwitch, &Switch::clicked, this, [this](bool on) {
        change([on](ReadingOptions& options) { options.remotePage = on; });
    });
    addPart(new LabelledRow(u"Page for Phones and Tablets"_s, pageSwitch));
    addReach();
    problemLabel = addText(u"pageProblem"_s);
    addCode();
}

void PageSection::addReach() {
    reachPopup = addPopup(u"Reached From"_s, u"pageReach"_s, {u"This Computer"_s},
                          [this](ReadingOptions& options, int item) {
                              options.remoteAddress.reset();
                              if (item > 0) options.remoteAddress = addresses[item - 1];
                          });
    networkHint = addText(u"pageNetworkHint"_s,
                          u"It is not encrypted: who can listen in this network can read the "
                          u"script."_s);
}

void PageSection::addCode() {
    codePart = new QWidget;
    QVBoxLayout* column = layOutColumn(*codePart, partSpacing);
    codeView = new CodeView(u"Code of the page's address"_s);
    column->addWidget(codeView, 0, Qt::AlignHCenter);
    addressLabel = makeWrappingLabel({}, monospacedFont(11), SystemPalette::label);
    addressLabel->setObjectName(u"reading_pageAddress"_s);
    addressLabel->setAccessibleName(u"Address of the page, with its code"_s);
    addressLabel->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    column->addWidget(addressLabel);
    pagesLabel = makeWrappingLabel({}, systemFont(11), SystemPalette::secondaryLabel);
    pagesLabel->setObjectName(u"reading_pagesLabel"_s);
    column->addWidget(pagesLabel);
    auto* button = new BezelButton(u"Disconnect All"_s);
    button->setObjectName(u"reading_disconnectButton"_s);
    button->setAccessibleDescription(u"Ends all sessions and makes another code"_s);
    connect(button, &BezelButton::clicked, this, [this] { help.disconnectAll(); });
    column->addWidget(button, 0, Qt::AlignRight);
    addPart(codePart);
}

QLabel* PageSection::addText(const QString& identifier, const QString& text) {
    auto* label = makeWrappingLabel(text, systemFont(11), SystemPalette::secondaryLabel);
    label->setObjectName(u"reading_"_s + identifier);
    addPart(label);
    return label;
}

/// One that this machine does not have now stays chosen until the user chooses another.
void PageSection::showAddresses(const ReadingOptions& options) {
    QStringList known = help.addresses();
    if (options.remoteAddress && !known.contains(*options.remoteAddress))
        known += *options.remoteAddress;
    if (known != addresses) {
        while (reachPopup->count() > 1)
            reachPopup->removeItem(1);
        reachPopup->addItems(known);
        addresses = known;
    }
    reachPopup->setCurrentIndex(
        options.remoteAddress ? 1 + int(addresses.indexOf(*options.remoteAddress)) : 0);
}

void PageSection::showOptions(const ReadingOptions& options) {
    const bool isWanted = options.remotePage;
    pageSwitch->setChecked(isWanted);
    if (isWanted) showAddresses(options);
    reachPopup->parentWidget()->setVisible(isWanted);
    networkHint->setVisible(isWanted && options.remoteAddress.has_value());
    const QString problem = isWanted ? help.problem() : QString();
    problemLabel->setText(u"The page cannot be served: "_s + problem);
    problemLabel->setVisible(!problem.isEmpty());
    const QString code = isWanted ? help.code() : QString();
    codeView->show(code);
    addressLabel->setText(code);
    pagesLabel->setText(pagesText(help.pages()));
    codePart->setVisible(!code.isEmpty());
}

} // namespace tessaline
