#pragma once

#include "reading/ReadingView.h"

#include <QtGlobal>

#include <vector>

namespace tessaline {

/// A view without a picture, in which the whole text takes so many points.
class RecordingView final : public ReadingView {
public:
    void scriptChanged(const Script&, const ScriptChange&, bool placeIsKept) override {
        placesKept.push_back(placeIsKept);
    }
    void moveBy(double points) override { steps.push_back(points); }
    void moveTo(qsizetype offset) override { offsets.push_back(offset); }
    void follow(const ReadingPlace& place) override { followed.push_back(place); }
    double distance() const override { return wholeDistance; }
    double readerPosition() const override { return 0.0; }
    double lastReaderPosition() const override { return wholeDistance; }
    double topOf(std::size_t) const override { return 0.0; }
    std::vector<LineBox> linesBetween(double, double) override { return {}; }

    std::vector<bool> placesKept;
    std::vector<double> steps;
    std::vector<qsizetype> offsets;
    std::vector<ReadingPlace> followed;
    double wholeDistance = 0.0;
};

} // namespace tessaline
