#include "ui/reading/EyeLineSection.h"

#include "ui/controls/PopupButton.h"
#include "ui/reading/OptionSlider.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double percent = 100.0;
constexpr double firstShare = 0.33; ///< before the user has chosen one

struct GuideItem {
    ReadingGuide guide;
    double lines; ///< of the band
    const char16_t* title;
};

constexpr GuideItem guideItems[] = {
    {ReadingGuide::none, 0, u"None"},
    {ReadingGuide::marker, 0, u"Marker"},
    {ReadingGuide::band, 1, u"Band of One Line"},
    {ReadingGuide::band, 2, u"Band of Two Lines"},
};

QStringList guideTitles() {
    QStringList titles;
    for (const GuideItem& item : guideItems)
        titles += QString::fromUtf16(item.title);
    return titles;
}

void chooseGuide(ReadingOptions& options, int index) {
    const GuideItem& item = guideItems[index];
    options.guide = item.guide;
    if (item.lines > 0) options.guideLines = item.lines;
}

int itemFor(const ReadingOptions& options) {
    const auto found =
        std::find_if(std::begin(guideItems), std::end(guideItems), [&](const GuideItem& item) {
            return item.guide == options.guide &&
                   (item.lines == 0 || item.lines == options.guideLines);
        });
    return int(std::distance(std::begin(guideItems), found));
}

} // namespace

EyeLineSection::EyeLineSection(ReadingSettings& shared) : ReadingSection(shared) {
    placePopup = addPopup(u"Position"_s, u"eyeLine"_s, {u"Second Line"_s, u"Share of Height"_s},
                          [](ReadingOptions& options, int item) {
                              options.eyeLine.reset();
                              if (item > 0) options.eyeLine = firstShare;
                          });
    heightSlider = new OptionSlider(u"Below the Top"_s, u"eyeLine"_s,
                                    {.least = percent * ReadingOptions::leastEyeLine,
                                     .most = percent * ReadingOptions::mostEyeLine});
    addSlider(heightSlider,
              [](ReadingOptions& options, double number) { options.eyeLine = number / percent; });
    guidePopup = addPopup(u"Guide"_s, u"guide"_s, guideTitles(), chooseGuide);
}

void EyeLineSection::showOptions(const ReadingOptions& options) {
    placePopup->setCurrentIndex(options.eyeLine ? 1 : 0);
    heightSlider->setVisible(options.eyeLine.has_value());
    const double share = percent * options.eyeLine.value_or(firstShare);
    heightSlider->show(share, u"%1 %"_s.arg(std::lround(share)));
    guidePopup->setCurrentIndex(itemFor(options));
}

} // namespace tessaline
