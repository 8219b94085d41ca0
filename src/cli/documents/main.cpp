// Writes the documents that come from the command table into a folder: run while building.

#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/documents/ManualPage.h"
#include "cli/documents/ShellCompletions.h"
#include "settings/WholeFile.h"

#include <QDir>

int main(int argc, char** argv) {
    using namespace tessaline;
    using namespace Qt::Literals::StringLiterals;
    if (argc != 4) {
        reportError(u"usage: tessaline_documents FOLDER VERSION DATE"_s);
        return ExitStatus::usage;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const std::pair<QString, QString> documents[] = {
        {u"tessaline.1"_s,
         manualPage(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]))},
        {u"tessaline.bash"_s, bashCompletion()},
        {u"_tessaline"_s, zshCompletion()},
        {u"tessaline.fish"_s, fishCompletion()},
    };
    folder.mkpath(u"."_s);
    for (const auto& [name, text] : documents) {
        QString error;
        if (writeWholeFile(folder.filePath(name), text.toUtf8(), &error)) continue;
        return reportFailure(u"cannot write %1: %2"_s.arg(name, error));
    }
    return ExitStatus::success;
}
