#pragma once

#include "load/LoadHistory.h"
#include "load/Planner.h"
#include "load/Session.h"
#include "load/StationGroups.h"
#include "load/Summary.h"
#include "platform/Result.h"
#include "shell/FormLayout.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet {

// A station the keyboard reaches on a form's picture (its cabin or decks).
struct FocusStation {
    int station = 0; // in the load state
    double x = 0;    // where a click on it lands, twips of the picture
    double y = 0;
    TwipsRect mark; // what the focus mark outlines, twips of the picture
};

// Persons row by row from the nose, each row from its left seat: the order the keyboard walks them.
void orderInRows(std::vector<FocusStation>& persons, const LoadState& state);

// A load form: the window on which one aircraft type's stations are loaded. It is set up without
// being shown whenever the main window refreshes, and shown by "Adjust".
class LoadForm : public SummaryForm {
public:
    explicit LoadForm(Session& session) : m_session(session) {}
    virtual ~LoadForm() = default;
    LoadForm(const LoadForm&) = delete;
    LoadForm& operator=(const LoadForm&) = delete;

    // Writes the type's built-in station table and limits into the load state.
    virtual void Form_Load() = 0;
    // Reads the type's stored load again and shows it.
    virtual void mnuload_Click() = 0;
    // Writes the aircraft's aircraft.cfg and the type's station file from the load state.
    virtual void mnusave_Click() = 0;
    // The Light, Medium and Heavy presets of the form's menu; a form without them has nothing to do.
    virtual void mnulight_Click() {}
    virtual void mnumed_Click() {}
    virtual void mnuheav_Click() {}
    // Closing: the summary on this form, the main window's refresh, and the main window again.
    virtual void Form_Unload();
    // Whether the form may close: with unsaved changes the user is asked whether to save them
    // first. A save that fails, or "Cancel", keeps it open.
    bool Form_QueryUnload();

    // The stations the keyboard walks on the form's picture, in the order it walks them: the persons
    // row by row, then the holds and containers. Empty on a form without a picture to load.
    virtual std::vector<FocusStation> focusStations() const { return {}; }
    // What a click of Button (1 left, 2 right) on the station does; it goes through the form's own
    // click handler, so that keyboard and mouse never differ.
    virtual void pressStation(const FocusStation& station, int Button)
    {
        static_cast<void>(station);
        static_cast<void>(Button);
    }
    // A station as a screen reader names it: "Passenger 12C, 170 lb", "Lower Deck Cargo Aft, empty".
    std::string spokenStation(int station) const;

    void runSummary() { summary(*this, m_session.state, m_session.currentType()); }

    // The crew, the passenger seats and the holds of the type that is set up; none on a form whose
    // load cannot be planned.
    virtual StationGroups stationGroups() const { return {}; }
    // Puts a planned load on the stations in one step, then checks, redraws and sums up as a click
    // does.
    void applyPlan(const Plan& plan);

    // Runs a handler as one step of the undo history; it is recorded only when the load changed.
    // `name` names the step unless exactly one station changed, which then names it.
    template <class Action>
    void step(std::string_view name, Action&& action)
    {
        LoadSnapshot before = LoadSnapshot::of(m_session.state);
        std::forward<Action>(action)();
        m_history.record(name, std::move(before), LoadSnapshot::of(m_session.state));
    }
    // Put the load before (after) the last undone step back and show it; false when there is none.
    bool undo();
    bool redo();
    std::string undoName() const { return m_history.undoName(); }
    std::string redoName() const { return m_history.redoName(); }
    // Starts a new history when the form is set up for another type than before.
    void keepHistoryFor(const std::string& type);
    // Whether the load differs from the one last read or saved.
    bool modified() const { return m_history.differsFromStored(LoadSnapshot::of(m_session.state)); }

    // Counts the successful saves, so that a window can tell one has happened, and when.
    int saves() const { return m_saves; }
    const TimeOfDay& savedAt() const { return m_savedAt; }

    // The picture that shows the deck or cabin (none on a form without one), and the drawing of it
    // with the loaded stations marked, on that picture or on any other of the same size in twips:
    // the load sheet draws it again at the printer's resolution.
    virtual Canvas* deckPicture() { return nullptr; }
    virtual void drawDeck(Canvas& /*picture*/) {}

    bool visible = false;

protected:
    // The reader and writer of the aircraft file interface; what they succeed in is the load that
    // counts as saved.
    Status read();
    Status save();
    // What the form runs after its load changed at once (a plan applied, a step undone or redone):
    // its checks, its drawing and the summary, as after a click.
    virtual void afterLoadChange() = 0;

    Session& m_session;

private:
    void show(const LoadSnapshot* load);

    LoadHistory m_history;
    std::string m_historyType;
    int m_saves = 0;
    TimeOfDay m_savedAt;
};

} // namespace quillet
