#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <functional>
#include <iosfwd>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tessaline {

/// A way to fail.
struct Fault {
    std::string call;
    std::string kind; ///< an error number or a word, as FailingCalls.cpp explains
    bool lasts = false;
};

void PrintTo(const Fault& fault, std::ostream* out);

/// The ways in which these calls fail.
std::vector<Fault> faultsOf(const std::set<std::string>& calls);

/// Has fault_driver change the files of a folder while its calls fail one by one.
class InputOutputFaults : public testing::TestWithParam<Fault> {
protected:
    /// What is in the folder: folders end with a slash.
    using Files = std::map<QString, QByteArray>;

    struct Outcome {
        int calls = 0; ///< calls that could have failed
        std::string output;
        Files files;
    };

    /// The file's path in the folder.
    QString pathOf(const QString& name) const { return folder.filePath(name); }

    void put(const QString& name, const QByteArray& bytes) const;

    /// Lets the driver do an action with the folder as it is now, first without a fault and then,
    /// each time from the same start, with the first call failing, the second one, and so on.
    /// `check` judges what came of each; `before` and `complete` are there to compare with.
    void failEachCall(const QStringList& action, const std::function<void(const Outcome&)>& check);

    /// Whether every file is as before or as it was meant to become, and there is no other one.
    void expectOldOrNew(const Files& now) const;

    /// A text that starts with this and goes on with a reason.
    static testing::Matcher<std::string> saysWhy(const std::string& message);

    QTemporaryDir folder;
    Files before;
    Outcome complete; ///< without a fault

private:
    Outcome run(const QStringList& action, int number) const;
    Files files() const;
    void restore() const;

    QTemporaryDir outside;
};

} // namespace tessaline
