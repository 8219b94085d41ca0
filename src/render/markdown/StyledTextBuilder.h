#pragma once

#include "render/StyledText.h"

#include <QStringView>

#include <cstddef>
#include <unordered_map>

namespace tessaline {

/// Puts a `StyledText` together from front to back.
class StyledTextBuilder {
public:
    /// `expectedLength` is the text's likely length in UTF-16 units.
    explicit StyledTextBuilder(qsizetype expectedLength = 0);

    /// The index of these attributes, for `append`.
    int styleIndex(const TextAttributes& attributes);

    /// Adds text with the attributes of an index from `styleIndex`. What makes the whole longer
    /// than a text may be is left out.
    void append(QStringView text, int style);

    /// Hands the text over; the builder is spent afterwards.
    StyledText take();

    /// What was appended since the last `clear`.
    const StyledText& current() const { return result; }

    /// Takes the carriage returns out of it.
    void removeCarriageReturns() { tessaline::removeCarriageReturns(result); }

    /// Forgets what was appended, and keeps the attributes.
    void clear();

private:
    struct Hash {
        std::size_t operator()(const TextAttributes& attributes) const;
    };

    StyledText result;
    std::unordered_map<TextAttributes, int, Hash> indices;
};

} // namespace tessaline
