#pragma once

#include <QString>

#include <cstdint>
#include <random>

namespace tessaline {

/// Writes a talk in Markdown as speakers write theirs: sections of prose with some emphasis, code
/// and links, and now and then a list, a list of tasks, a quote or a fenced listing. The same talk
/// for the same seed on every platform.
class SampleTalk {
public:
    explicit SampleTalk(std::uint32_t seed = 1);

    /// A talk that ends with the block in which it reaches `words` words.
    QString write(qsizetype words);

private:
    void section();
    void paragraph();
    void list(QStringView marker);
    void numberedList();
    void quote();
    void listing();
    void sentence();
    void phrase(int words);
    void emphasis();
    void link();
    QStringView word();
    bool oneIn(std::uint32_t count) { return below(count) == 0; }
    std::uint32_t below(std::uint32_t bound) { return generator() % bound; }

    std::mt19937 generator;
    QString text;
    qsizetype written = 0;
};

} // namespace tessaline
