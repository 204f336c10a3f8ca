#pragma once

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
    const auto rowOf = [&](int py) { return &reached[static_cast<std::size_t>(py) * width]; };

    // Scanline fill: a run is grown whole as soon as one of its pixels is found open, so that each
    // pixel's border test is made once; pixels already reached are skipped a row span at a time.
    std::vector<std::size_t> pending; // runs whose neighbouring rows are still to be searched
    const auto grow = [&](int px, int py) {
        std::uint8_t* row = rowOf(py);
        int left = px;
        while (left > 0 && !row[left - 1] && !isBorder(left - 1, py))
            --left;
        int right = px;
        while (right + 1 < width && !row[right + 1] && !isBorder(right + 1, py))
            ++right;
        std::fill(row + left, row + right + 1, std::uint8_t{1});
        pending.push_back(runs.size());
        runs.insert(runs.end(), {left, right, py});
        onRun(left, right, py);
        return right;
    };

    grow(x, y);
    while (!pending.empty()) {
        const std::size_t run = pending.back();
        pending.pop_back();
        const int left = runs[run];
        const int right = runs[run + 1];
        const int sy = runs[run + 2];
        for (int ny : {sy - 1, sy + 1}) {
            if (ny < 0 || ny >= height)
                continue;
            const std::uint8_t* row = rowOf(ny);
            int px = left;
            while (px <= right) {
                if (row[px])
                    px = static_cast<int>(std::find(row + px, row + right + 1, std::uint8_t{0}) - row);
                else if (isBorder(px, ny))
                    ++px;
                else
                    px = grow(px, ny) + 1;
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

} // namespace quillet
