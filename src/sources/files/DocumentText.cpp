#include "sources/files/DocumentText.h"

#include "platform/ProcessRunner.h"
#include "settings/FilePath.h"

#include <QRegularExpression>

#include <chrono>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds longestConversion{20};
constexpr quint64 mostMemory = quint64{1} << 30;
constexpr qsizetype longestReason = 80;

/// pandoc's name for the format; empty: none that it is asked to read.
QString formatOf(const QString& path) {
    for (const auto& format : {u"docx"_s, u"odt"_s})
        if (path.endsWith(u'.' + format, Qt::CaseInsensitive)) return format;
    return {};
}

/// What went wrong in pandoc's own words, as far as they fit.
QString reasonOf(const ProcessResult& result) {
    if (result.error.contains("--sandbox"_L1)) return u"version 2.15 or newer is needed"_s;
    const QString reason = result.error.section(u'\n', -1).section(u"pandoc: "_s, -1).simplified();
    if (reason.isEmpty()) return u"it was stopped"_s;
    return reason.size() > longestReason ? reason.first(longestReason) + u'…' : reason;
}

QString problemOf(const ProcessResult& result) {
    if (!result.hasStarted)
        return u"install pandoc, the program that reads .docx and .odt for Tessaline"_s;
    if (result.exceeded == ProcessLimits::Kind::time)
        return u"pandoc took longer than %1 seconds"_s.arg(longestConversion.count());
    if (result.exceeded == ProcessLimits::Kind::output)
        return u"its text is larger than %1 MiB"_s.arg(documentLimit >> 20);
    return result.exitCode == 0 ? QString() : u"pandoc cannot read it: "_s + reasonOf(result);
}

} // namespace

bool isDocumentName(const QString& path) {
    return !formatOf(path).isEmpty();
}

ReadText readDocument(const QString& path, ProcessRunner& processes) {
    if (hasForeignBytes(path)) return {std::nullopt, u"its name is not valid UTF-8"_s};
    const ProcessResult result = processes.run(
        u"pandoc"_s,
        {u"--sandbox"_s, u"--from"_s, formatOf(path), u"--to"_s, u"gfm-raw_html"_s,
         u"--wrap=none"_s, path},
        {.time = longestConversion, .outputBytes = documentLimit, .memoryBytes = mostMemory});
    QString problem = problemOf(result);
    if (!problem.isEmpty()) return {std::nullopt, problem};
    return {plainMarkdown(result.output), {}};
}

QString plainMarkdown(const QString& markdown) {
    static const QRegularExpression emptyParagraph(u"^&nbsp;$"_s,
                                                   QRegularExpression::MultilineOption);
    static const QRegularExpression link(uR"((?<![!\\])\[([^\[\]\n]*)\]\([^()\s]*\))"_s);
    static const QRegularExpression escape(uR"(\\([!-/:-@\[-`{-~]))"_s);
    QString text = markdown;
    text.remove(emptyParagraph);
    text.replace(link, u"\\1"_s);
    text.replace(escape, u"\\1"_s);
    return text;
}

} // namespace tessaline
