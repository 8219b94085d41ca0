#pragma once

#include "render/StyledText.h"
#include "render/TextAttributes.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace tessaline {

/// Text with an attribute set for every UTF-16 unit: the plainest form that styled text can be
/// edited in.
class UnitStyledText {
public:
    UnitStyledText() = default;
    UnitStyledText(QStringView text, const TextAttributes& attributes);

    const QString& text() const { return characters; }
    qsizetype size() const { return characters.size(); }

    /// The attributes of one unit, to read or to change.
    TextAttributes& at(qsizetype index) { return attributes[index]; }

    void append(const UnitStyledText& other);

    /// Replaces [start, end) by `replacement`, all of it with one attribute set.
    void replace(qsizetype start, qsizetype end, const QString& replacement,
                 const TextAttributes& style);

    /// Sets the paragraph style of every unit.
    void setParagraph(const ParagraphStyle& paragraph);

    /// The same text with runs.
    StyledText toStyledText() const;

private:
    QString characters;
    std::vector<TextAttributes> attributes;
};

} // namespace tessaline
