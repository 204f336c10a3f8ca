#pragma once

#include "Canvas.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace quillet {

// Calls onRun(left, right, y) for every horizontal run of pixels reached from (x, y) through
// horizontal and vertical neighbours without crossing a border pixel; each pixel is in one run.
// Nothing when the start is outside the picture or a border pixel.
// `reached` is scratch room of width*height zeros, handed back as zeros, so that a canvas filling
// often keeps one.
template <class IsBorder, class OnRun>
void floodRuns(int width, int height, int x, int y, IsBorder&& isBorder, OnRun&& onRun,
               std::vector<std::uint8_t>& reached)
{
    if (x < 0 || y < 0 || x >= width || y >= height || isBorder(x, y))
        return;
    reached.resize(static_cast<std::size_t>(width) * height, 0);
    std::vector<int> runs; // left, right, y of every run, to hand the scratch room back clean
    const auto open = [&](int px, int py) {
        return !reached[static_cast<std::size_t>(py) * width + px] && !isBorder(px, py);
    };

    // Scanline fill: each seed grows into its whole run, which then seeds one point per open run of
    // the rows above and below.
    std::vector<std::pair<int, int>> seeds{{x, y}};
    while (!seeds.empty()) {
        auto [sx, sy] = seeds.back();
        seeds.pop_back();
        if (!open(sx, sy))
            continue;
        int left = sx;
        while (left > 0 && open(left - 1, sy))
            --left;
        int right = sx;
        while (right + 1 < width && open(right + 1, sy))
            ++right;
        std::uint8_t* row = &reached[static_cast<std::size_t>(sy) * width];
        for (int px = left; px <= right; ++px)
            row[px] = 1;
        runs.insert(runs.end(), {left, right, sy});
        onRun(left, right, sy);
        for (int ny : {sy - 1, sy + 1}) {
            if (ny < 0 || ny >= height)
                continue;
            bool inRun = false;
            for (int px = left; px <= right; ++px) {
                const bool isOpen = open(px, ny);
                if (isOpen && !inRun)
                    seeds.emplace_back(px, ny);
                inRun = isOpen;
            }
        }
    }
    for (std::size_t i = 0; i < runs.size(); i += 3) {
        std::uint8_t* row = &reached[static_cast<std::size_t>(runs[i + 2]) * width];
        std::fill(row + runs[i], row + runs[i + 1] + 1, std::uint8_t{0});
    }
}

template <class IsBorder, class OnRun>
void floodRuns(int width, int height, int x, int y, IsBorder&& isBorder, OnRun&& onRun)
{
    std::vector<std::uint8_t> reached;
    floodRuns(width, height, x, y, isBorder, onRun, reached);
}

// The pixels floodRuns reaches, as a width*height mask in rows. Empty when the start is a border
// pixel.
std::vector<bool> floodRegion(int width, int height, int x, int y,
                              const std::function<bool(int, int)>& isBorder);

// Whether a pixel of an area filled with the given style takes the fill colour; the diagonal
// cross is the 8-pixel hatch of the old toolkit, anchored at the picture's origin.
constexpr bool takesFill(FillStyle style, int x, int y)
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
