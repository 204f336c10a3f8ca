#pragma once

#include "load/Session.h"
#include "load/Summary.h"
#include "shell/FormLayout.h"

#include <string>
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
    // Closing: the summary on this form, the main window's refresh, and the main window again.
    virtual void Form_Unload();

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

    bool visible = false;

protected:
    Session& m_session;
};

} // namespace quillet
