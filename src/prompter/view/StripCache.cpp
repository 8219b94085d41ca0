#include "prompter/view/StripCache.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tessaline {

namespace {

PixelRange seenPixels(const QImage& image, int row, QRgb ground) {
    const auto* pixels = reinterpret_cast<const QRgb*>(image.constScanLine(row));
    const auto isSeen = [ground](QRgb pixel) { return pixel != ground; };
    const auto* end = pixels + image.width();
    const auto* first = std::find_if(pixels, end, isSeen);
    if (first == end) return {};
    while (!isSeen(end[-1]))
        --end;
    return {int(first - pixels), int(end - pixels)};
}

void turnSideways(QImage& image) {
    for (int row = 0; row < image.height(); ++row) {
        auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(row));
        std::reverse(pixels, pixels + image.width());
    }
}

} // namespace

StripCache::StripCache(Draw drawColumn) : draw(std::move(drawColumn)) {}

void StripCache::resize(int width, int height, double devicePixelRatio, const FrameLook& newLook) {
    look = newLook;
    pixelRatio = devicePixelRatio;
    // A screenful that begins and ends inside a strip, the row below it, and one strip either side
    // that is drawn ahead of time.
    const int count = height / rowsPerStrip + 2 + 2;
    kept.clear();
    for (int i = 0; i < count; ++i)
        kept.push_back({-1, QImage(std::max(width, 1), rowsPerStrip, look.format()), {}});
}

void StripCache::invalidate() {
    for (Slot& slot : kept)
        slot.strip = -1;
}

void StripCache::invalidateRows(qsizetype top, qsizetype bottom) {
    for (Slot& slot : kept) {
        if ((slot.strip + 1) * rowsPerStrip > top && slot.strip * rowsPerStrip < bottom)
            slot.strip = -1;
    }
}

StripCache::Row StripCache::row(qsizetype index) {
    const qsizetype strip = index / rowsPerStrip;
    const Slot& slot = slotOf(strip);
    const auto inStrip = int(index - strip * rowsPerStrip);
    return {slot.image.constScanLine(inStrip), slot.seen[std::size_t(inStrip)]};
}

bool StripCache::prepare(qsizetype row) {
    const qsizetype strip = row / rowsPerStrip;
    if (row < 0 || kept.empty() || find(strip)) return false;
    slotOf(strip);
    return true;
}

StripCache::Slot* StripCache::find(qsizetype strip) {
    const auto slot =
        std::find_if(kept.begin(), kept.end(), [&](const Slot& s) { return s.strip == strip; });
    return slot == kept.end() ? nullptr : &*slot;
}

StripCache::Slot& StripCache::slotOf(qsizetype strip) {
    if (Slot* slot = find(strip)) return *slot;
    const auto distance = [&](const Slot& slot) {
        return slot.strip < 0 ? std::numeric_limits<qsizetype>::max()
                              : std::abs(slot.strip - strip);
    };
    Slot& farthest = *std::max_element(kept.begin(), kept.end(), [&](const Slot& a, const Slot& b) {
        return distance(a) < distance(b);
    });
    drawStrip(farthest, strip);
    return farthest;
}

void StripCache::drawStrip(Slot& slot, qsizetype strip) {
    slot.strip = strip;
    slot.image.fill(look.ground());
    const double top = double(strip * rowsPerStrip) / pixelRatio;
    QPainter painter(&slot.image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.scale(pixelRatio, pixelRatio);
    painter.translate(0, -top);
    draw(painter, top, top + rowsPerStrip / pixelRatio);
    painter.end();
    if (look.isSideways()) turnSideways(slot.image);
    const QRgb ground = look.ground();
    for (int row = 0; row < rowsPerStrip; ++row)
        slot.seen[std::size_t(row)] = seenPixels(slot.image, row, ground);
}

} // namespace tessaline
