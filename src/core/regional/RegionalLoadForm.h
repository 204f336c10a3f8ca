#pragma once

#include "RegionalType.h"
#include "platform/Canvas.h"
#include "shell/LoadForm.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quillet {

// Fixed texts the regional forms share.
inline constexpr std::string_view kPaxDetailsTitle = "Pax Details";
inline constexpr std::string_view kDefaultWeight = "170";

// What every regional load form has, whether its cabin is a picture with hot spots or a seat map the
// program draws: the photograph, the weight summary's labels, the two balance pictures, the File
// menu and the three presets of the regional family. The window lays these out from type().layout
// and builds the menus from type().menus.
class RegionalLoadForm : public LoadForm {
public:
    RegionalLoadForm(Session& session, const RegionalType& type);

    const RegionalType& type() const { return m_type; }

    // The photograph's file; empty when it is missing, and the picture box stays blank.
    std::filesystem::path photo;
    SummaryLabels labels;

    SummaryLabels& summaryLabels() override { return labels; }
    Canvas& Picture4() override { return *m_picture4; }
    Canvas& Picture3() override { return *m_picture3; }

    // Reads the type's stored load again, redraws and runs the summary.
    void mnuload_Click() override;
    // The aircraft file writer. Nothing on the form changes.
    void mnusave_Click() override;
    void mnulight_Click() override;
    void mnumed_Click() override;
    void mnuheav_Click() override;

    // Brings the cabin in line with the station weights. It does not run the summary.
    virtual void redraw() = 0;
    // Counts the loaded passenger seats into npax.
    void nopass() override;

    StationGroups stationGroups() const override;

protected:
    int stationCount() const { return static_cast<int>(m_type.stations.size()); }
    // Loads the photograph and writes the type's limits, counts and stations into the load state.
    void setUpType();
    // Shows the load a preset has left, before the summary runs.
    virtual void showPresetLoad() { redraw(); }
    // Shows a load set on many stations at once and runs the summary.
    void afterLoadChange() override;

private:
    template <class Preset>
    void applyPreset(const Preset& preset);

    const RegionalType& m_type;
    std::unique_ptr<Canvas> m_picture4;
    std::unique_ptr<Canvas> m_picture3;
};

// The weight typed into the input box: the leading number of the answer, or 0 (no weight) when that
// is not a positive number a station's weight can hold. A cancelled box is an empty answer.
float weightAnswer(const std::optional<std::string>& answer);

} // namespace quillet
