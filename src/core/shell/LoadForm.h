#pragma once

#include "load/Session.h"
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

    bool visible = false;

protected:
    Session& m_session;
};

} // namespace quillet
