#include "Form1.h"

#include "AircraftTypes.h"
#include "Settings.h"
#include "load/Summary.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <filesystem>
#include <optional>

namespace quillet {

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
    auto bytes =
        file ? m_session.files.read(*file, kSettingsMaxBytes)
             : Result<std::string>(Error{"\"" + std::string(kSettingsFile) + "\" was not found in \"" +
                                         displayPath(m_session.programFolder) + "\"."});
    if (bytes) {
        if (const auto notText = whyNotText(bytes.value()))
            bytes = Error{"\"" + displayPath(*file) + "\" " + *notText + "."};
    }
    Settings settings;
    if (bytes) {
        settings = parseSettings(bytes.value(), kMenuCapacity);
        for (const std::string& problem : settings.problems) {
            m_session.messages.reportOnce("The settings file \"" + displayPath(*file) +
                                          "\" is not complete: " + problem + ".");
        }
    } else {
        m_session.messages.reportOnce(
            "The settings could not be read: " + bytes.error().message +
            " Quillet starts with no aircraft and the simulator folder \"" + std::string(kDefaultSimFolder) +
            "\"; set them in the configuration dialog, which saves them when it is closed.");
        settings.simfolder = std::string(kDefaultSimFolder);
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
                                              state.menutype[i] + "\" in \"" + displayPath(*file) +
                                              "\" is not a single folder name, so \"" + state.menutype[i] +
                                              "\" is not listed. Give it the name of its folder inside \"" +
                                              state.simfolder + "\\aircraft\" in the configuration dialog.");
            }
            continue;
        }
        // A flag once set stays set for the run.
        if (fileExists(state.simfolder + "\\aircraft\\" + state.menufolder[i] + "\\aircraft.cfg",
                       m_session.programFolder, m_session.files.system())) {
            state.menuvalid[i] = true;
            Combo1.addItem(state.menutype[i]);
            Combo1.tooltip = "Select Aircraft Type";
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
            return notSaved("\"" + displayPath(path) + "\" " + *notKept +
                            ", and no copy of it could be made: " + kept.error().message);
    }
    if (auto renamed = m_session.files.commit(pending.value()); !renamed)
        return notSaved(renamed.error().message);
    if (notKept) {
        m_session.messages.report("The settings file \"" + displayPath(path) + "\" " + *notKept +
                                  ". The file as it was is kept as \"" + displayPath(backup) + "\", and \"" +
                                  displayPath(path) + "\" now holds the simulator folder and the " +
                                  std::to_string(entries.size()) + " aircraft of Quillet's menu.");
    }
    return true;
}

} // namespace quillet
