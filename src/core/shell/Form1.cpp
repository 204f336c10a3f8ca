#include "Form1.h"

#include "AircraftTypes.h"
#include "Settings.h"
#include "UserFolder.h"
#include "load/Summary.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <filesystem>
#include <optional>

namespace quillet {

namespace {

// Why an entry whose aircraft folder is there still cannot be listed. Nothing when the folder itself
// is missing: that is an entry not set up yet.
std::optional<std::string> whyNotListed(const std::string& folder, const std::filesystem::path& base,
                                        const FileSystem& system)
{
    std::error_code ec;
    const auto found = findPath(folder, base, system);
    if (!found)
        return std::nullopt;
    if (!system.status(*found, ec).isFolder())
        return "\"" + folder + "\" is a file, not a folder";
    const auto cfg = findPath(folder + "\\aircraft.cfg", base, system);
    if (!cfg)
        return "its folder \"" + folder + "\" holds no aircraft.cfg";
    if (system.status(*cfg, ec).isFolder())
        return "the aircraft.cfg in \"" + folder + "\" is a folder, not a file";
    return "the aircraft.cfg in \"" + folder + "\" is not a plain file";
}

} // namespace

Form1::Form1(Session& session, FormRegistry& forms)
    : m_session(session), m_forms(forms), m_form4(session, *this)
{
    Combo1.onClick = [this] { Combo1_Click(); };
    m_session.currentType = [this] { return Combo1.text(); };
    m_session.refreshMain = [this] { refresh(); };
    m_session.showMain = [this] { visible = true; };
}

void Form1::Form_Load()
{
    LoadState& state = m_session.state;
    form4().Combo1.clear();
    form4().Combo2.clear();
    loadini(state.nmenu);

    for (int i = 0; i < state.nmenu; ++i) {
        ComboState& list = state.menuvalid[i] ? form4().Combo1 : form4().Combo2;
        list.addItem(state.menutype[i]);
        list.setListIndex(0);
    }
    for (int i = 0; i < state.nmenu; ++i) {
        if (state.menutype[i] == form4().Combo1.text())
            form4().Valid_dir.setText(state.menufolder[i]);
    }
    if (!form4().Check2)
        form4().visible = true;
    if (!Combo1.items().empty())
        Combo1.setListIndex(0);
    refresh();
}

void Form1::Combo1_Click()
{
    refresh();
}

void Form1::Combo1_Scroll()
{
    refresh();
}

void Form1::Combo1_Validate()
{
    refresh();
}

LoadForm* Form1::selectedForm()
{
    const AircraftType* type = findAircraftType(Combo1.text());
    if (!type || !m_forms.serves(type->form, type->type))
        return nullptr;
    return m_forms.form(type->form, m_session);
}

void Form1::refresh()
{
    PicDHC.visible = true;
    if (const AircraftType* type = findAircraftType(Combo1.text())) {
        PicDHC.file = m_session.picture(type->picture);
        if (LoadForm* form = selectedForm()) {
            form->keepHistoryFor(Combo1.text());
            form->Form_Load();
            form->mnuload_Click();
            form->runSummary();
        } else {
            m_session.messages.reportOnce(
                "The \"" + Combo1.text() +
                "\" cannot be loaded yet: this version of Quillet has no load form for it.");
        }
    }
    const LoadState& state = m_session.state;
    lblbow.text = bowText(state);
    lblpax.text = paxText(state);
    lblmf.text = fuelText(state);
    lbltot.text = totalText(state);
}

void Form1::Command2_Click()
{
    LoadForm* form = selectedForm();
    if (!form)
        return;
    form->mnuload_Click();
    visible = false;
    form->visible = true;
}

void Form1::mnuconfigair_Click()
{
    loadini(m_session.state.nmenu);
    form4().visible = true;
}

void Form1::munver_Click()
{
    aboutVisible = true;
}

void Form1::mnucopyright_Click()
{
    form2Visible = true;
}

void Form1::Form_Unload()
{
    ended = true;
}

void Form1::loadini(int& count)
{
    LoadState& state = m_session.state;
    Combo1.clear();

    const auto file = findPath(kSettingsFile, m_session.programFolder, m_session.files.system());
    Settings settings;
    if (!file) {
        // A first start: every type waits in the dialog's list of available aircraft, so the dialog
        // can be used at once, as in a user folder's starter settings.
        settings = parseSettings(starterSettings(), kMenuCapacity);
        m_session.messages.reportOnce(
            "Quillet found no \"" + std::string(kSettingsFile) + "\" in " +
            quotedPath(m_session.programFolder) +
            ", so it starts with all its aircraft types waiting under \"Avaliable Aircraft\". Next, in the "
            "configuration dialog, give the simulator folder (the one holding fs2000.exe), then choose each "
            "aircraft you fly, type or browse to its folder and press \"Add\" when it appears; closing the "
            "dialog saves the settings.");
    } else {
        auto bytes = m_session.files.read(*file, kSettingsMaxBytes);
        if (bytes) {
            if (const auto notText = whyNotText(bytes.value()))
                bytes = Error{quotedPath(*file) + " " + *notText + "."};
        }
        if (bytes) {
            settings = parseSettings(bytes.value(), kMenuCapacity);
            for (const std::string& problem : settings.problems) {
                m_session.messages.reportOnce("The settings file " + quotedPath(*file) +
                                              " is not complete: " + problem + ".");
            }
        } else {
            m_session.messages.reportOnce(
                "The settings could not be read: " + bytes.error().message +
                " Quillet starts with no aircraft and the simulator folder \"" +
                std::string(kDefaultSimFolder) +
                "\"; set them in the configuration dialog, which saves them when it is closed.");
            settings.simfolder = std::string(kDefaultSimFolder);
        }
    }

    state.simfolder = settings.simfolder;
    count = static_cast<int>(settings.entries.size());
    for (int i = 0; i < count; ++i) {
        state.menutype[i] = settings.entries[static_cast<std::size_t>(i)].type;
        state.menufolder[i] = settings.entries[static_cast<std::size_t>(i)].folder;
        // A path instead of a folder name would lead the aircraft's files out of the aircraft folder.
        if (!isSingleName(state.menufolder[i])) {
            if (!state.menufolder[i].empty()) {
                m_session.messages.reportOnce("The aircraft folder \"" + state.menufolder[i] + "\" of \"" +
                                              state.menutype[i] + "\" in " + quotedPath(*file) +
                                              " is not a single folder name, so \"" + state.menutype[i] +
                                              "\" is not listed. Give it the name of its folder inside \"" +
                                              state.simfolder + "\\aircraft\" in the configuration dialog.");
            }
            continue;
        }
        // A flag once set stays set for the run.
        const std::string folder = state.simfolder + "\\aircraft\\" + state.menufolder[i];
        if (fileExists(folder + "\\aircraft.cfg", m_session.programFolder, m_session.files.system())) {
            state.menuvalid[i] = true;
            Combo1.addItem(state.menutype[i]);
            Combo1.tooltip = "Select Aircraft Type";
        } else if (const auto why = whyNotListed(folder, m_session.programFolder, m_session.files.system())) {
            m_session.messages.reportOnce("\"" + state.menutype[i] + "\" is not in the aircraft list: " +
                                          *why + ". Put the aircraft's aircraft.cfg there, or give \"" +
                                          state.menutype[i] + "\" its folder in the configuration dialog.");
        }
    }

    // Assigning the folder runs the dialog's folder check when it changes the text.
    form4().simdir.setText(state.simfolder);
    if (!Combo1.items().empty())
        Combo1.setListIndex(0);
}

bool Form1::saveini(int count)
{
    const LoadState& state = m_session.state;
    std::vector<MenuEntry> entries;
    for (int i = 0; i < count && i < kMenuCapacity; ++i)
        entries.push_back({state.menutype[i], state.menufolder[i]});
    const auto path = resolvePath(kSettingsFile, m_session.programFolder, m_session.files.system());
    const std::string bytes = formatSettings(state.simfolder, entries);
    const auto notSaved = [this](const std::string& why) {
        m_session.messages.report("The settings were not saved: " + why);
        return false;
    };

    // What the user wrote is never dropped without a copy and a word; and a file that would not change
    // is not written at all, so a read-only one that is up to date is no trouble.
    std::string onDisk;
    std::optional<std::string> notKept;
    std::error_code ec;
    if (m_session.files.system().status(path, ec).exists()) {
        auto read = m_session.files.read(path, kSettingsMaxBytes);
        if (!read)
            return notSaved(read.error().message + " It was left as it is.");
        onDisk = std::move(read).value();
        if (onDisk == bytes)
            return true;
        notKept = settingsNotKept(onDisk, kMenuCapacity);
    }
    auto pending = m_session.files.prepare(path, bytes);
    if (!pending)
        return notSaved(pending.error().message);
    const auto backup = path.parent_path() / (std::string(kSettingsFile) + ".bak");
    if (notKept) {
        if (auto kept = m_session.files.replace(backup, onDisk); !kept)
            return notSaved(quotedPath(path) + " " + *notKept +
                            ", and no copy of it could be made: " + kept.error().message);
    }
    if (auto renamed = m_session.files.commit(pending.value()); !renamed)
        return notSaved(renamed.error().message);
    if (notKept) {
        m_session.messages.report("The settings file " + quotedPath(path) + " " + *notKept +
                                  ". The file as it was is kept as " + quotedPath(backup) + ", and " +
                                  quotedPath(path) + " now holds the simulator folder and the " +
                                  std::to_string(entries.size()) + " aircraft of Quillet's menu.");
    }
    return true;
}

} // namespace quillet
