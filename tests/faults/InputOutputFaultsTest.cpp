#include "settings/SettingsCodec.h"
#include "support/TestFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cerrno>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// A way to fail.
struct Fault {
    const char* call;
    const char* kind; ///< an error number, or "short"
    bool lasts = false;
};

const std::string enospc = std::to_string(ENOSPC);
const std::string eacces = std::to_string(EACCES);
const std::string eintr = std::to_string(EINTR);
const std::string eio = std::to_string(EIO);

const std::vector<Fault> faults = {
    {"open", eacces.c_str()},        {"open", eacces.c_str(), true},
    {"open", enospc.c_str()},        {"open", enospc.c_str(), true},
    {"open", eintr.c_str()},         {"write", enospc.c_str()},
    {"write", enospc.c_str(), true}, {"write", eintr.c_str()},
    {"write", eio.c_str()},          {"write", "short"},
    {"write", "short", true},        {"fsync", eio.c_str()},
    {"fsync", enospc.c_str()},       {"rename", eacces.c_str()},
    {"rename", enospc.c_str()},      {"close", eio.c_str()},
    {"close", eintr.c_str()},
};

std::string nameOf(const testing::TestParamInfo<Fault>& info) {
    const Fault& fault = info.param;
    const std::string error = fault.kind == std::string("short")
                                  ? "Short"
                                  : std::string(::strerrorname_np(std::atoi(fault.kind)));
    return std::string(fault.call) + error + (fault.lasts ? "AndOn" : "");
}

class InputOutputFaults : public testing::TestWithParam<Fault> {
protected:
    struct Outcome {
        int calls = 0; ///< calls that could have failed
        QByteArray output;
    };

    /// Runs the driver with the `number`th call failing; none for 0.
    Outcome run(const QStringList& arguments, int number) {
        const QString bin = QCoreApplication::applicationDirPath();
        const QString report = outside.filePath(u"report"_s);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LD_PRELOAD"_s, bin + u"/libfailing_calls.so"_s);
        environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0:detect_leaks=0"_s);
        environment.insert(u"FAULT_FOLDER"_s, folder.path());
        environment.insert(u"FAULT_CALL"_s, QString::fromLatin1(GetParam().call));
        environment.insert(u"FAULT_KIND"_s, QString::fromLatin1(GetParam().kind));
        environment.insert(u"FAULT_LASTS"_s, GetParam().lasts ? u"1"_s : u"0"_s);
        environment.insert(u"FAULT_NUMBER"_s, QString::number(number));
        environment.insert(u"FAULT_REPORT"_s, report);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(bin + u"/fault_driver"_s, arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0);
        return {fileBytes(report).toInt(), process.readAll()};
    }

    QTemporaryDir folder;
    QTemporaryDir outside;
};

TEST_P(InputOutputFaults, LeaveTheOldOrTheNewSettingsWhole) {
    const QString path = folder.filePath(u"config.json"_s);
    const QByteArray before = encodeSettings(PersistedSettings()).value();
    putFile(path, before);
    const QStringList save{u"save"_s, path};
    const int calls = run(save, 0).calls;
    const QByteArray after = fileBytes(path);
    ASSERT_NE(after, before);
    ASSERT_GT(calls, 0);

    for (int number = 1; number <= calls; ++number) {
        putFile(path, before);
        const Outcome outcome = run(save, number);
        const QByteArray now = fileBytes(path);
        EXPECT_TRUE(now == before || now == after)
            << "call " << number << ", " << now.size() << " bytes";
        if (now == before) {
            EXPECT_THAT(outcome.output.toStdString(),
                        testing::HasSubstr("Failed to save config: "));
        }
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"config.json"_s})
            << "call " << number;
    }
}

INSTANTIATE_TEST_SUITE_P(, InputOutputFaults, testing::ValuesIn(faults), nameOf);

} // namespace
} // namespace tessaline
