#pragma once

#include "LoadState.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillet {

// The part of the load state a save writes and a reload replaces: the counts and limits of the
// station file's first lines and every station in use with its label, position and weight.
struct LoadSnapshot {
    struct Station {
        std::string name;
        float x = 0;
        float y = 0;
        float z = 0;
        float weight = 0;
        bool operator==(const Station&) const = default;
    };

    StationHeader header;
    std::vector<Station> stations;
    // Kept so that putting a load back leaves the total it had; it follows from the weights, so two
    // loads that differ only here are the same load.
    float loadweight = 0;

    static LoadSnapshot of(const LoadState& state);
    void restoreInto(LoadState& state) const;
    bool operator==(const LoadSnapshot& other) const
    {
        return header == other.header && stations == other.stations;
    }
};

// The undo history of one load form: each step holds the load before and after it. Undoing and
// redoing move along the steps; a new step drops the ones that were undone. It also keeps the load
// last read or saved, which tells whether the shown load is unsaved.
class LoadHistory {
public:
    // Records a change of the load as one step; nothing when the load is the same. The step is named
    // after its station when exactly one station changed, otherwise `action`.
    void record(std::string_view action, LoadSnapshot before, LoadSnapshot after);
    // The load to put back, or nullptr when there is nothing to undo or redo.
    const LoadSnapshot* undo();
    const LoadSnapshot* redo();
    // The name of the step that undo or redo would take; "" when there is none.
    std::string undoName() const;
    std::string redoName() const;
    // Forgets every step.
    void clear();

    void markStored(LoadSnapshot stored);
    // Whether a load differs from the one last read or saved; false before any was.
    bool differsFromStored(const LoadSnapshot& load) const;

private:
    struct Step {
        std::string name;
        LoadSnapshot before;
        LoadSnapshot after;
    };

    std::vector<Step> m_steps;
    std::size_t m_done = 0; // steps [0, m_done) are in effect
    bool m_hasStored = false;
    LoadSnapshot m_stored;
};

} // namespace quillet
