#pragma once

#include "load/LoadState.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace quillet {

// A jet type's limits and counts as its published table gives them.
struct JetTable {
    float maxtakeoff;
    float maxlanding;
    float emptyweight;
    float maxfuel;
    float maxzerofuel;
    int maxpax;
    int cfgstations;
    int seats1;
    int seats2;
    int seats3;
    int nstations;
    int ncargo;
    int nlower;
    int ncrew;
    int deckscale;
};

inline void expectTable(const LoadState& state, int deckscale, const JetTable& table)
{
    EXPECT_EQ(state.maxtakeoff, table.maxtakeoff);
    EXPECT_EQ(state.maxlanding, table.maxlanding);
    EXPECT_EQ(state.emptyweight, table.emptyweight);
    EXPECT_EQ(state.maxfuel, table.maxfuel);
    EXPECT_EQ(state.maxzerofuel, table.maxzerofuel);
    EXPECT_EQ(state.maxpax, table.maxpax);
    EXPECT_EQ(state.loadweight, 0);
    EXPECT_EQ(state.cfgstations, table.cfgstations);
    EXPECT_EQ(state.seats1, table.seats1);
    EXPECT_EQ(state.seats2, table.seats2);
    EXPECT_EQ(state.seats3, table.seats3);
    EXPECT_EQ(state.nstations, table.nstations);
    EXPECT_EQ(state.ncargo, table.ncargo);
    EXPECT_EQ(state.nlower, table.nlower);
    EXPECT_EQ(state.ncrew, table.ncrew);
    EXPECT_EQ(deckscale, table.deckscale);
}

// A station as the type's table gives it; x to the table's four decimals.
struct TableStation {
    int index;
    const char* name;
    double x;
    double y;
};

inline void expectStations(const LoadState& state, std::initializer_list<TableStation> stations)
{
    for (const TableStation& expected : stations) {
        EXPECT_EQ(state.stationname[expected.index], expected.name) << expected.index;
        EXPECT_NEAR(state.stationx[expected.index], expected.x, 1e-4) << expected.name;
        EXPECT_FLOAT_EQ(state.stationy[expected.index], static_cast<float>(expected.y)) << expected.name;
    }
}

} // namespace quillet
