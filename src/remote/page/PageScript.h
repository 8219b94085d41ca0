#pragma once

#include <QByteArray>

#include <cstddef>
#include <memory>
#include <optional>

namespace tessaline {

struct Script;

/// The script as pages fetch it: in parts, so that none takes long to make, however long it is.
class PageScript {
public:
    static constexpr std::size_t paragraphsPerPart = 400;

    /// Takes another script over, if it is another; its version is told in names.
    void show(const std::shared_ptr<const Script>& script);

    qint64 version() const { return currentVersion; }
    std::size_t paragraphs() const;

    /// The part with the name "VERSION/NUMBER", as JSON; none when there is none of that name now.
    std::optional<QByteArray> part(const QByteArray& name) const;

private:
    std::shared_ptr<const Script> current;
    qint64 currentVersion = 0;
};

} // namespace tessaline
