#pragma once

#include <vector>

namespace Find {

constexpr int gapBetweenColumns = 2;

/// How a table's columns share the lines.
struct TableLayout {
    std::vector<int> widths; ///< of the columns that stand beside each other
    int indent = 0;          ///< where the cells of the further columns stand, each on lines of its own
    int below = 0;           ///< the width of those cells
};

/// The layout for cells of these widths, row by row, that breaks the fewest cells; the more columns stand beside each
/// other the better. `leading` columns always do. All do when `width` is 0, for no limit.
TableLayout chooseLayout(const std::vector<std::vector<int>>& cells, std::size_t leading, int width);

} // namespace Find
