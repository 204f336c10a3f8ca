#include "FloodFill.h"

namespace quillet {

std::vector<bool> floodRegion(int width, int height, int x, int y,
                              const std::function<bool(int, int)>& isBorder)
{
    std::vector<bool> mask;
    floodRuns(width, height, x, y, isBorder, [&](int left, int right, int row) {
        if (mask.empty())
            mask.assign(static_cast<std::size_t>(width) * height, false);
        for (int px = left; px <= right; ++px)
            mask[static_cast<std::size_t>(row) * width + px] = true;
    });
    return mask;
}

} // namespace quillet
