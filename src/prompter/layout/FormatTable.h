#pragma once

#include "prompter/layout/Typography.h"
#include "render/TextAttributes.h"

#include <QColor>
#include <QFont>
#include <QTextCharFormat>

#include <vector>

namespace tessaline {

/// The real colour for a colour that the renderer names.
QColor resolvedColor(const TextColor& color);

/// The real font for a font that the renderer names, in a family in place of the system's if one is
/// named.
QFont resolvedFont(const TextFont& font, const QString& family = {});

/// The font of text without attributes.
QFont defaultTextFont();

/// How high a line is, in points, when it is drawn scaled: a whole number, so that lines are evenly
/// spaced, and the leading. The measures are those of the unscaled font; the height is ascent and
/// descent together.
double scaledLineHeight(double height, double leading, double scale);

/// How high a line of nothing but this font is, in points.
double lineHeightOf(const TextFont& font, const Typography& typography = {});

/// What a line of so many points gets on top with a line spacing: a whole number.
double extraLineHeight(double height, double lineSpacing);

/// What the attribute sets of a text look like in Qt's terms, resolved once for each set.
class FormatTable {
public:
    /// A set as Qt draws it, with the measures by which unseen text is estimated, in points.
    struct Entry {
        QTextCharFormat format;
        QFont font; ///< the format's, kept because its copies share what was looked up for it
        QColor background;  ///< invalid where there is none
        double scale = 1.0; ///< by how much the font is larger than Qt draws it
        double lineHeight = 0.0;
        double averageAdvance = 0.0;
    };

    FormatTable();

    /// Replaces the table by one for these sets, with every font so many points larger.
    void assign(const std::vector<TextAttributes>& styles, double growth = 0.0,
                const Typography& typography = {});

    /// The same table for what is selected: everything in white, as colours of its own may be
    /// faint.
    FormatTable ofSelected() const;

    /// The entry of the set with this index.
    const Entry& operator[](int style) const { return entries[std::size_t(style)]; }

    /// The entry of text without attributes.
    const Entry& plain() const { return plainEntry; }

    double lineSpacing() const { return spacing; }

private:
    std::vector<Entry> entries;
    Entry plainEntry;
    double spacing = 1.0;
};

} // namespace tessaline
