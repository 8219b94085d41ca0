#include "platform/qt/QtFileChooser.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Qt's own panel is wider than small screens.
void fitOnScreen(QFileDialog& panel) {
    constexpr double mostOfTheScreen = 0.9;
    const QSize room = panel.screen()->availableSize() * mostOfTheScreen;
    panel.resize(panel.sizeHint().boundedTo(room));
}

} // namespace

QtFileChooser::~QtFileChooser() {
    delete panel;
}

void QtFileChooser::chooseFile(const Question& question,
                               std::function<void(const QString& path)> picked) {
    if (panel && panel->isVisible()) {
        panel->raise();
        return panel->activateWindow();
    }
    panel = new QFileDialog(nullptr, question.title, question.startFolder);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilters({u"%1 (%2)"_s.arg(question.kind, question.patterns.join(u' ')),
                           QFileDialog::tr("All files (*)")});
    panel->setSupportedSchemes({u"file"_s});
    QObject::connect(panel, &QFileDialog::fileSelected, panel,
                     [picked = std::move(picked)](const QString& path) { picked(path); });
    fitOnScreen(*panel);
    panel->show();
    panel->raise();
    panel->activateWindow();
}

} // namespace tessaline
