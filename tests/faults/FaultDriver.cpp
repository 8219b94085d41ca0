// Does one thing that reads or changes files of the user's, for the tests to make it fail half-way.

#include "analytics/EventHistory.h"
#include "settings/AppSettings.h"
#include "sources/ClipboardSource.h"
#include "sources/obsidian/InstalledObsidian.h"
#include "support/FakeBundleInformation.h"
#include "support/FakeFolderChooser.h"
#include "support/FakePasteboard.h"
#include "support/TestPlatform.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTimeZone>

#include <cstdio>

extern "C" {
// Defined by the preloaded library, if there is one.
void armFaults() __attribute__((weak));
void disarmFaults() __attribute__((weak));
}

namespace {

using namespace tessaline;
using namespace Qt::Literals::StringLiterals;

/// While it lives, calls may fail.
struct Armed {
    Armed() {
        if (armFaults) armFaults();
    }
    ~Armed() {
        if (disarmFaults) disarmFaults();
    }
};

void print(const QString& text) {
    std::fputs(text.toUtf8().constData(), stdout);
}

void loadSettings(const QString& path) {
    const Armed armed;
    const AppSettings settings(path);
    print(u"font size %1\n"_s.arg(settings.fontSize()));
}

void saveSettings(const QString& path) {
    AppSettings settings(path);
    const QString longPath = u"x"_s.repeated(20000);
    const Armed armed;
    settings.change([&longPath](PersistedSettings& values) {
        values.fontSize = 22;
        values.notePath = longPath;
    });
}

/// A history that is yet to be read, with a new event.
class History {
public:
    explicit History(const QString& path) : history(path, day(1)) {
        history.add({.name = u"new"_s,
                     .timestamp = day(20),
                     .properties = {{u"length"_s, u"x"_s.repeated(20000)}}});
    }

    void load() { history.load(); }
    void flush() { history.flush(); }

private:
    static QDateTime day(int number) {
        return {QDate(2026, 1, number), QTime(12, 0), QTimeZone::utc()};
    }

    EventHistory history;
};

void flushHistory(const QString& path) {
    History history(path);
    history.load();
    const Armed armed;
    history.flush();
}

void flushHistoryAgain(const QString& path) {
    History history(path);
    history.load();
    {
        const Armed armed;
        history.flush();
    }
    history.flush();
}

void readAndFlushHistory(const QString& path) {
    History history(path);
    const Armed armed;
    history.flush();
}

void paste(const QString& path) {
    FakePasteboard pasteboard;
    pasteboard.text = u"new "_s.repeated(5000);
    ClipboardSource source(pasteboard, path);
    source.startWatching([](const QString& text) { print(text.left(3) + u" is shown\n"_s); });
    const Armed armed;
    const auto pasted = source.pasteFromClipboard();
    print(u"%1 characters are pasted\n"_s.arg(pasted ? pasted->size() : 0));
}

void install(const QString& home, bool accessIsGranted) {
    TestPlatform system;
    system.bundle.resources = home + u"/resources"_s;
    if (accessIsGranted) system.folderChooser.answer = home;
    InstalledObsidian obsidian(home, VaultRegistry(home), system.platform);
    const Armed armed;
    const auto result = obsidian.installPlugin();
    print((result.success ? u"success: "_s : u"failure: "_s) + result.message + u'\n');
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString action = arguments.value(1);
    const QString path = arguments.value(2);
    if (action == u"load"_s) {
        loadSettings(path);
    } else if (action == u"save"_s) {
        saveSettings(path);
    } else if (action == u"flush"_s) {
        flushHistory(path);
    } else if (action == u"flush-again"_s) {
        flushHistoryAgain(path);
    } else if (action == u"read-and-flush"_s) {
        readAndFlushHistory(path);
    } else if (action == u"paste"_s) {
        paste(path);
    } else if (action == u"install"_s) {
        install(path, false);
    } else if (action == u"install-with-access"_s) {
        install(path, true);
    } else {
        std::fputs("usage: fault_driver ACTION PATH\n", stderr);
        return 2;
    }
    return 0;
}
