#include "core/cell.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace cellora {
namespace {

TEST(Cells, LieInRowsColumnsAndRegions) {
    struct Place {
        int intCell, intRow, intColumn, intRegion;
    };
    for (const Place& place : {Place{1, 0, 0, 0}, Place{9, 0, 8, 2}, Place{30, 3, 2, 3},
                               Place{31, 3, 3, 4}, Place{41, 4, 4, 4}, Place{54, 5, 8, 5},
                               Place{55, 6, 0, 6}, Place{73, 8, 0, 6}, Place{81, 8, 8, 8}}) {
        SCOPED_TRACE(place.intCell);
        EXPECT_EQ(GetRow(place.intCell), place.intRow);
        EXPECT_EQ(GetColumn(place.intCell), place.intColumn);
        EXPECT_EQ(GetRegion(place.intCell), place.intRegion);
    }
}

TEST(Cells, FormNineRegionsOfThreeByThree) {
    std::array<std::set<int>, 9> aRegions;
    for (int i = 1; i <= intCellCount; ++i)
        aRegions.at(static_cast<std::size_t>(GetRegion(i))).insert(i);
    const std::array<int, 9> aTopLeft = {1, 4, 7, 28, 31, 34, 55, 58, 61};
    for (std::size_t k = 0; k < 9; ++k) {
        const int t = aTopLeft[k];
        EXPECT_EQ(aRegions[k],
                  (std::set{t, t + 1, t + 2, t + 9, t + 10, t + 11, t + 18, t + 19, t + 20}));
    }
}

} // namespace
} // namespace cellora
