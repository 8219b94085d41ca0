#pragma once

#include "cli/CommandSpec.h"

#include <QStringList>

#include <map>
#include <optional>

namespace tessaline {

/// The arguments of a command, taken apart. A plain value; any thread.
struct CommandArguments {
    /// Takes `arguments`, those behind the command's name, apart. The first mistake ends it and is
    /// described in `error`.
    static CommandArguments parse(const CommandSpec& spec, const QStringList& arguments);

    bool has(QStringView option) const { return options.count(option.toString()) != 0; }
    std::optional<QString> value(QStringView option) const;

    QStringList operands;
    std::map<QString, QString> options; ///< values by name; the last one of each counts
    QString error;                      ///< empty: none

private:
    void addOption(const CommandSpec& spec, const QString& argument,
                   QStringList::const_iterator& next, QStringList::const_iterator end);
};

} // namespace tessaline
