#include "platform/qt/QtFolderChooser.h"

#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QStyle>

namespace tessaline {

namespace {

/// The message above everything else in the panel.
void showMessage(QFileDialog& panel, const QString& message) {
    auto* label = new QLabel(message, &panel);
    label->setObjectName(QStringLiteral("message"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    const int margin = panel.style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    label->setContentsMargins(margin, margin, margin, 0);
    // Whatever the widget is, this is the place at the top of a layout that Qt filled itself.
    panel.layout()->setMenuBar(label);
}

} // namespace

std::optional<QString> QtFolderChooser::chooseFolder(const Question& question) {
    QFileDialog panel(nullptr, question.title, question.startFolder);
    panel.setFileMode(QFileDialog::Directory);
    panel.setOptions(QFileDialog::ShowDirsOnly | QFileDialog::ReadOnly |
                     QFileDialog::DontUseNativeDialog);
    showMessage(panel, question.message);
    if (panel.exec() != QDialog::Accepted) return std::nullopt;
    const QStringList chosen = panel.selectedFiles();
    return chosen.isEmpty() ? std::nullopt : std::optional(chosen.first());
}

} // namespace tessaline
