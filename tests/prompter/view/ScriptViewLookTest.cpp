#include "ScriptViewFixture.h"
#include "prompter/layout/FormatTable.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <cmath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class ScriptViewLookTest : public ScriptViewFixture {
protected:
    /// What the view paints over a red window.
    QImage overRed(QImage::Format format = QImage::Format_ARGB32_Premultiplied) {
        QImage image(view.size(), format);
        image.fill(Qt::red);
        view.render(&image, {}, {}, {});
        return image;
    }

    double lineHeight(qsizetype offset) const { return view.caretRect(offset).height(); }
};

TEST_F(ScriptViewLookTest, LetsBeSeenWhatIsBelowTheGroundButNotBelowTheText) {
    show(u"████\n\nafter"_s);
    const QPoint letter = view.caretRect(1).center().toPoint() + QPoint(5, 0);
    const QPoint ground(view.width() - 30, 20);
    const QRgb inText = overRed().pixel(letter);
    EXPECT_EQ(overRed().pixel(ground), qRgb(0, 0, 0));

    view.setLook({.frame = {.groundOpacity = 0.6}});
    EXPECT_EQ(overRed().pixel(ground), qRgba(0, 0, 0, 153)) << "no red: the frame replaces it";
    EXPECT_EQ(overRed().pixel(letter), inText);
    view.scrollTo(view.maximumScrollPosition());
    view.setLook({});
    EXPECT_EQ(overRed().pixel(ground), qRgb(0, 0, 0));
}

TEST_F(ScriptViewLookTest, IsTheSameWhetherAFrameIsWrittenInPlaceOrCopiedThere) {
    constexpr auto foreign = QImage::Format_RGBA8888_Premultiplied; // takes no row as it is
    show(lines(100));
    for (const double opacity : {1.0, 0.5}) {
        for (const Mirroring mirroring : {Mirroring::none, Mirroring::vertical}) {
            view.setLook({.frame = {mirroring, opacity}});
            for (const double position : {0.0, 20.5, 33.3}) {
                view.scrollTo(position);
                const QImage inPlace = overRed();
                EXPECT_EQ(inPlace, overRed(foreign).convertToFormat(inPlace.format())) << position;
            }
        }
    }
}

TEST_F(ScriptViewLookTest, MixesRowsOfAGroundThatIsSeenThrough) {
    show(lines(100));
    view.setLook({.frame = {.groundOpacity = 0.5}});
    overRed();
    view.scrollTo(20.5);
    const QImage image = overRed();
    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
        EXPECT_EQ(image.pixel(view.width() / 2, y), qRgba(0, 0, 0, 128)) << y;
        for (int x = 0; x < image.width() / 4; ++x)
            if (qAlpha(image.pixel(x, y)) > 128) ++inked;
    }
    EXPECT_GT(inked, 100);
}

TEST_F(ScriptViewLookTest, MakesLinesHigherAroundTheMiddleOfTheirText) {
    show(u"# Title\n\nbody\n`code`"_s);
    const qsizetype body = view.script().text().indexOf(u"body");
    const qsizetype code = view.script().text().indexOf(u"code");
    for (const qsizetype offset : {qsizetype(0), body, code}) {
        view.setLook({});
        const double usual = lineHeight(offset);
        view.setLook({.typography = {.lineSpacing = 1.5}});
        EXPECT_EQ(lineHeight(offset), usual + std::round(usual / 2));
        view.setLook({.typography = {.lineSpacing = 2}});
        EXPECT_EQ(lineHeight(offset), 2 * usual);
    }
}

TEST_F(ScriptViewLookTest, DrawsTheTextInTheMiddleOfAHigherLine) {
    show(u"x█x"_s);
    const auto middleOfInk = [this] {
        const QImage image = overRed();
        const int x = int(view.caretRect(2).x()) - 4;
        int first = -1;
        int last = -1;
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) == qRgb(0, 0, 0)) continue;
            if (first < 0) first = y;
            last = y;
        }
        EXPECT_GE(first, 0);
        return (first + last) / 2.0 - view.caretRect(0).center().y();
    };
    const double usual = middleOfInk();
    view.setLook({.typography = {.lineSpacing = 2}});
    EXPECT_NEAR(middleOfInk(), usual, 1.0);
}

TEST_F(ScriptViewLookTest, KeepsTheReadersPlaceWhenTheLinesChange) {
    show(lines(300));
    view.setFontSize(16);
    view.scrollTo(2000);
    const QString line = topLine();
    view.setLook({.typography = {.lineSpacing = 1.75}});
    EXPECT_EQ(topLine(), line);
    EXPECT_GT(view.scrollPosition(), 3000);
    view.setLook({});
    EXPECT_EQ(topLine(), line);
}

TEST_F(ScriptViewLookTest, SetsAllButCodeInTheFamilyThatIsWanted) {
    const QString family = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    const TextFont body{.size = 16};
    EXPECT_EQ(QFontInfo(resolvedFont(body, family)).family(), QFontInfo(QFont(family)).family());
    TextFont code = body;
    code.family = TextFont::Family::monospaced;
    EXPECT_EQ(resolvedFont(code, u"Some Family"_s), resolvedFont(code));

    // As narrow as it is wide: in a font of one width only.
    show(u"iiii\nmmmm"_s);
    const qsizetype second = view.script().text().indexOf(u"mmmm");
    const auto widths = [&] {
        return std::pair(view.caretRect(4).x(), view.caretRect(second + 4).x());
    };
    EXPECT_LT(widths().first, widths().second);
    view.setLook({.typography = {.family = family}});
    EXPECT_NEAR(widths().first, widths().second, 0.01);
    view.setLook({});
    EXPECT_LT(widths().first, widths().second);
}

} // namespace
} // namespace tessaline
