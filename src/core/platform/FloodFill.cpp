#include "FloodFill.h"

#include <utility>

namespace quillet {

std::vector<bool> floodRegion(int width, int height, int x, int y,
                              const std::function<bool(int, int)>& isBorder)
{
    std::vector<bool> mask;
    if (x < 0 || y < 0 || x >= width || y >= height || isBorder(x, y))
        return mask;
    mask.assign(static_cast<std::size_t>(width) * height, false);
    const auto at = [width](int px, int py) { return static_cast<std::size_t>(py) * width + px; };

    // Scanline fill: each popped seed fills its whole run, then seeds the rows above and below.
    std::vector<std::pair<int, int>> seeds{{x, y}};
    while (!seeds.empty()) {
        auto [sx, sy] = seeds.back();
        seeds.pop_back();
        if (mask[at(sx, sy)])
            continue;
        int left = sx;
        while (left > 0 && !mask[at(left - 1, sy)] && !isBorder(left - 1, sy))
            --left;
        int right = sx;
        while (right + 1 < width && !mask[at(right + 1, sy)] && !isBorder(right + 1, sy))
            ++right;
        for (int px = left; px <= right; ++px)
            mask[at(px, sy)] = true;
        for (int ny : {sy - 1, sy + 1}) {
            if (ny < 0 || ny >= height)
                continue;
            for (int px = left; px <= right; ++px) {
                if (!mask[at(px, ny)] && !isBorder(px, ny))
                    seeds.emplace_back(px, ny);
            }
        }
    }
    return mask;
}

bool takesFill(FillStyle style, int x, int y)
{
    switch (style) {
    case FillStyle::Solid:
        return true;
    case FillStyle::Transparent:
        return false;
    case FillStyle::DiagonalCross:
        return ((x + y) & 7) == 0 || ((x - y) & 7) == 0;
    }
    return false;
}

} // namespace quillet
