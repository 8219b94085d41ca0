#include "sources/files/LatestScripts.h"

#include "platform/TaskRunner.h"
#include "settings/FilePath.h"
#include "settings/SettingsFile.h"
#include "settings/SupportFolder.h"
#include "sources/files/ScriptFile.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <algorithm>
#include <cmath>
#include <functional>
#include <mutex>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(latestLog, "app.tessaline.Tessaline.latest", QtInfoMsg)

/// Ten paths have to fit into an answer to another instance.
constexpr qsizetype longestPath = 1000;

/// Texts whose lengths differ by more than this share count as different.
constexpr double mostDifference = 0.1;

struct LatestValues {
    std::vector<LatestScript> scripts;

    bool operator==(const LatestValues&) const = default;
};

bool isSane(const LatestScript& script) {
    return script.path.startsWith(u'/') && script.path.size() <= longestPath &&
           script.length >= 0.0 && script.place >= 0.0;
}

void keepTheLatest(std::vector<LatestScript>& scripts) {
    std::erase_if(scripts, [](const LatestScript& script) { return !isSane(script); });
    if (scripts.size() > LatestScripts::most) scripts.resize(LatestScripts::most);
}

QString standardPath() {
    // Where this fails, writing the file fails next and says so.
    QDir().mkpath(supportFolderPath());
    return supportFolderPath() + "/latest.json"_L1;
}

/// Which files somebody reads is nobody else's business: the file is never open to others.
void createPrivately(const QString& path) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner))
        file.write("{}\n");
}

QString folderOf(const QString& path) {
    return path.section(u'/', 0, -2);
}

} // namespace

bool decode(const JsonValue& value, std::vector<LatestScript>& target) {
    const auto* array = value.as<JsonValue::Array>();
    if (!array) return false;
    target.clear();
    return std::all_of(array->begin(), array->end(), [&target](const JsonValue& element) {
        LatestScript script;
        const auto member = [&element](QStringView name, auto& content) {
            const JsonValue* found = element.find(name);
            return found && read(*found, content);
        };
        const bool isScript = member(u"path", script.path) && member(u"hash", script.hash) &&
                              member(u"length", script.length) && member(u"place", script.place);
        target.push_back(script);
        return isScript;
    });
}

JsonValue encode(const std::vector<LatestScript>& scripts) {
    JsonValue::Array array;
    for (const LatestScript& script : scripts) {
        array.push_back({JsonValue::Object{{u"path"_s, {script.path}},
                                           {u"hash"_s, {script.hash}},
                                           {u"length"_s, {script.length}},
                                           {u"place"_s, {script.place}}}});
    }
    return {array};
}

namespace {

const SettingsTable<LatestValues>& latestTable() {
    static const SettingsTable<LatestValues> table({
        settingsKey("scripts", &LatestValues::scripts, keepTheLatest),
    });
    return table;
}

} // namespace

quint32 hashOf(QStringView text) {
    constexpr quint32 basis = 2166136261;
    constexpr quint32 prime = 16777619;
    quint32 hash = basis;
    for (const QChar c : text)
        hash = (hash ^ c.unicode()) * prime;
    return hash;
}

std::optional<qsizetype> placeIn(const LatestScript& script, quint32 hash, qsizetype length) {
    if (script.place <= 0.0 || script.length <= 0.0) return {};
    double place = script.place;
    if (double(hash) != script.hash) {
        const double growth = double(length) / script.length;
        if (std::abs(growth - 1.0) > mostDifference) return {};
        place *= growth;
    }
    const auto offset = qsizetype(std::lround(std::min(place, double(length))));
    return offset < length ? std::optional(offset) : std::nullopt;
}

std::vector<QString> titlesOf(const std::vector<LatestScript>& scripts) {
    const auto count = [&scripts](const auto& part, const QString& wanted) {
        return std::count_if(scripts.begin(), scripts.end(),
                             [&](const LatestScript& each) { return part(each.path) == wanted; });
    };
    const auto nameInFolder = [](const QString& path) { return path.section(u'/', -2); };
    std::vector<QString> titles;
    for (const auto& [path, hash, length, place] : scripts) {
        QString title = shownFileName(path);
        if (count(shownFileName, title) > 1) {
            const bool isTold = count(nameInFolder, nameInFolder(path)) == 1;
            title += u" — "_s + (isTold ? shownFileName(folderOf(path)) : folderOf(path));
        }
        titles.push_back(title);
    }
    return titles;
}

/// What the background writes. Saves follow one another, and the last one has the last word.
struct LatestScripts::File {
    explicit File(std::function<QString()> path)
        : place(std::move(path)), settings(place, latestTable(), UnknownKeys::kept) {}

    void put(const LatestValues& values) {
        const std::lock_guard lock(mutex);
        waiting = values;
    }

    void write() {
        const std::lock_guard turn(writing);
        std::optional<LatestValues> values;
        {
            const std::lock_guard lock(mutex);
            values = std::exchange(waiting, std::nullopt);
        }
        if (!values) return;
        createPrivately(place());
        QString error;
        if (!settings.save(*values, &error))
            qCWarning(latestLog, "The latest scripts are not kept: %ls", qUtf16Printable(error));
    }

    const std::function<QString()> place;
    SettingsFile<LatestValues> settings;
    std::mutex mutex;
    std::mutex writing;
    std::optional<LatestValues> waiting;
};

LatestScripts::LatestScripts(TaskRunner& runner, const std::optional<QString>& path)
    : tasks(runner)
    , file(std::make_shared<File>([path] { return path ? *path : standardPath(); })) {
    if (!file->settings.exists()) return;
    QString error;
    if (auto loaded = file->settings.load(&error)) {
        scripts = std::move(loaded->scripts);
        return;
    }
    qCWarning(latestLog, "The latest scripts cannot be read: %ls", qUtf16Printable(error));
    file->settings.keepUnusable({});
}

LatestScripts::~LatestScripts() = default;

const LatestScript* LatestScripts::find(const QString& path) const {
    const auto found = std::find_if(scripts.begin(), scripts.end(),
                                    [&](const LatestScript& each) { return each.path == path; });
    return found == scripts.end() ? nullptr : &*found;
}

void LatestScripts::add(const QString& path) {
    LatestScript script{.path = path};
    if (!isSane(script) || hasForeignBytes(path)) return;
    if (const LatestScript* known = find(path)) script = *known;
    if (!scripts.empty() && scripts.front() == script) return;
    std::erase_if(scripts, [&](const LatestScript& each) { return each.path == path; });
    scripts.insert(scripts.begin(), script);
    keepTheLatest(scripts);
    save();
}

void LatestScripts::update(const LatestScript& known) {
    for (LatestScript& script : scripts) {
        if (script.path != known.path || script == known) continue;
        script = known;
        save();
    }
}

void LatestScripts::clear() {
    if (scripts.empty()) return;
    scripts.clear();
    save();
}

void LatestScripts::save() {
    file->put({scripts});
    tasks.run([file = file] { file->write(); });
}

void LatestScripts::finishSaving() {
    file->write();
}

} // namespace tessaline
