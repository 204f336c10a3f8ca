#pragma once

#include "load/Planner.h"
#include "load/Session.h"
#include "load/StationGroups.h"
#include "load/Summary.h"

#include <string>

namespace quillet {

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

    void runSummary() { summary(*this, m_session.state, m_session.currentType()); }

    // The crew, the passenger seats and the holds of the type that is set up; none on a form whose
    // load cannot be planned.
    virtual StationGroups stationGroups() const { return {}; }
    // Puts a planned load on the stations in one step, then checks, redraws and sums up as a click
    // does.
    void applyPlan(const Plan& plan);

    // The picture that shows the deck or cabin (none on a form without one), and the drawing of it
    // with the loaded stations marked, on that picture or on any other of the same size in twips:
    // the load sheet draws it again at the printer's resolution.
    virtual Canvas* deckPicture() { return nullptr; }
    virtual void drawDeck(Canvas& /*picture*/) {}

    bool visible = false;

protected:
    // What the form runs after its load changed: its checks, its drawing and the summary.
    virtual void afterLoadChange() { runSummary(); }

    Session& m_session;
};

} // namespace quillet
