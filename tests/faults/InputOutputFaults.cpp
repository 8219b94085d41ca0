#include "faults/InputOutputFaults.h"

#include "support/TestFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QProcess>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <ostream>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* isShort = "short";
constexpr const char* isFull = "full";

Fault once(const char* call, int error) {
    return {call, std::to_string(error)};
}

Fault fromThenOn(const char* call, int error) {
    return {call, std::to_string(error), true};
}

std::vector<Fault> allFaults() {
    return {
        once("open", EACCES),         fromThenOn("open", EACCES),  once("open", ENOSPC),
        fromThenOn("open", ENOSPC),   once("open", EINTR),         once("read", EIO),
        once("read", EINTR),          {"read", isShort},           {"read", isShort, true},
        once("write", ENOSPC),        fromThenOn("write", ENOSPC), once("write", EINTR),
        once("write", EIO),           {"write", isShort},          {"write", isShort, true},
        {"write", isFull, true},      once("fsync", EIO),          once("fsync", ENOSPC),
        once("fsync", EINTR),         once("rename", EACCES),      once("rename", ENOSPC),
        fromThenOn("rename", EACCES), once("close", EIO),          once("close", EINTR),
        fromThenOn("close", EIO),     once("mkdir", EACCES),       once("mkdir", ENOSPC),
        fromThenOn("mkdir", ENOSPC),  once("unlink", EACCES),      fromThenOn("unlink", EACCES),
    };
}

std::string kindOf(const Fault& fault) {
    if (fault.kind == isShort) return "Short";
    if (fault.kind == isFull) return "Full";
    return ::strerrorname_np(std::atoi(fault.kind.c_str()));
}

std::string nameOf(const Fault& fault) {
    return fault.call + kindOf(fault) + (fault.lasts ? "AndOn" : "");
}

} // namespace

void PrintTo(const Fault& fault, std::ostream* out) {
    *out << nameOf(fault);
}

std::vector<Fault> faultsOf(const std::set<std::string>& calls) {
    std::vector<Fault> faults = allFaults();
    std::erase_if(faults, [&](const Fault& fault) { return calls.count(fault.call) == 0; });
    return faults;
}

void InputOutputFaults::put(const QString& name, const QByteArray& bytes) const {
    const QString path = pathOf(name);
    QDir().mkpath(QFileInfo(path).path());
    putFile(path, bytes);
}

void InputOutputFaults::failEachCall(const QStringList& action,
                                     const std::function<void(const Outcome&)>& check) {
    before = files();
    complete = run(action, 0);
    ASSERT_GT(complete.calls, 0);
    for (int number = 1; number <= complete.calls; ++number) {
        SCOPED_TRACE(GetParam().call + " " + std::to_string(number));
        restore();
        const Outcome outcome = run(action, number);
        SCOPED_TRACE(outcome.output);
        check(outcome);
    }
}

void InputOutputFaults::expectOldOrNew(const Files& now) const {
    const auto in = [](const Files& files, const QString& path) {
        const auto entry = files.find(path);
        return entry == files.end() ? std::nullopt : std::optional(entry->second);
    };
    Files all = now;
    all.insert(before.begin(), before.end());
    for (const auto& [path, bytes] : all) {
        const auto found = in(now, path);
        EXPECT_TRUE(found == in(before, path) || found == in(complete.files, path))
            << path.toStdString() << ": "
            << (found ? std::to_string(found->size()) + " bytes" : "gone");
    }
}

testing::Matcher<std::string> InputOutputFaults::saysWhy(const std::string& message) {
    return testing::ContainsRegex(message + "[^\n]+\n");
}

InputOutputFaults::Outcome InputOutputFaults::run(const QStringList& action, int number) const {
    const QString bin = QCoreApplication::applicationDirPath();
    const QString report = outside.filePath(u"report"_s);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LD_PRELOAD"_s, bin + u"/libfailing_calls.so"_s);
    environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0:detect_leaks=0"_s);
    environment.insert(u"FAULT_FOLDER"_s, folder.path());
    environment.insert(u"FAULT_CALL"_s, QString::fromStdString(GetParam().call));
    environment.insert(u"FAULT_KIND"_s, QString::fromStdString(GetParam().kind));
    environment.insert(u"FAULT_LASTS"_s, GetParam().lasts ? u"1"_s : u"0"_s);
    environment.insert(u"FAULT_NUMBER"_s, QString::number(number));
    environment.insert(u"FAULT_REPORT"_s, report);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(bin + u"/fault_driver"_s, action);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0);
    return {fileBytes(report).toInt(), process.readAll().toStdString(), files()};
}

InputOutputFaults::Files InputOutputFaults::files() const {
    Files found;
    QDirIterator entries(folder.path(),
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QString name = path.mid(folder.path().size() + 1);
        if (entries.fileInfo().isDir()) {
            found.emplace(name + u'/', QByteArray());
        } else {
            found.emplace(name, fileBytes(path));
        }
    }
    return found;
}

void InputOutputFaults::restore() const {
    QDir(folder.path()).removeRecursively();
    QDir().mkpath(folder.path());
    for (const auto& [name, bytes] : before) {
        if (name.endsWith(u'/')) {
            QDir().mkpath(pathOf(name));
        } else {
            put(name, bytes);
        }
    }
}

} // namespace tessaline
