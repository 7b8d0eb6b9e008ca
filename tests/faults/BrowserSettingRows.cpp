// The settings of the browser that are applied: addresses, proxy, protocols and zones.
#include <algorithm>
#include <utility>

#include "forms/ComboBox.h"
#include "tests/faults/CommandList.h"
#include "tests/faults/FaultTable.h"
#include "tests/faults/PlainScenes.h"

namespace velkarix {
namespace {

void Type(RunningProgram& program, const char* box, const std::string& text) {
    program.Get<TextBox>("frmIE", box).TakeInput(text);
}

void GiveOnPage(MemoryMachine& machine, const char* command,
                const std::function<void(RunningProgram&)>& fillIn) {
    RunningProgram program(machine);
    OpenForm(program, "frmIE");
    fillIn(program);
    // What was filled in may stand there already.
    const std::string handler = SplitCommand(command).second;
    if (program.Get<Button>("frmIE", handler.substr(0, handler.rfind('_'))).Enabled()) {
        GiveCommand(program, command);
    }
}

// ---- Addresses

constexpr const char* AddressBoxes[] = {
    "txtStartPage",       "txtSearchURL", "txtSearchPage", "txtSearchBar",  "txtSEarchAssistant",
    "txtCustomizeSearch", "txtDefPrefix", "txtwwwPrefix",  "txtHomePrefix", "txtMosaicPrefix"};

std::vector<std::pair<const char*, std::string>> AddressesBefore() {
    MemoryMachine machine;
    PutFullMachine(machine);
    RunningProgram program(machine);
    OpenForm(program, "frmIE");
    GiveCommand(program, "frmIE.cmdURLs_Click");
    std::vector<std::pair<const char*, std::string>> texts;
    for (const char* box : AddressBoxes) {
        texts.emplace_back(box, program.Get<TextBox>("frmIE", box).Value());
    }
    return texts;
}

// What no box shows is written over all the same.
FaultScene AddressScene() {
    const std::string explorer = "software\\microsoft\\internet explorer\\";
    PlainScene scene{"frmIE.cmdApply_Click", "all addresses changed"};
    scene.open = [](RunningProgram& program) {
        GiveCommand(program, "frmIE.cmdURLs_Click");
        for (const char* box : AddressBoxes) Type(program, box, std::string("new ") + box);
    };
    scene.undo = [](MemoryMachine& machine) {
        GiveOnPage(machine, "frmIE.cmdApply_Click", [](RunningProgram& program) {
            GiveCommand(program, "frmIE.cmdURLs_Click");
            for (const auto& [box, text] : AddressesBefore()) Type(program, box, text);
        });
    };
    scene.overwritten = {"hklm\\" + explorer + "main\\, ", "hkcu\\" + explorer + "search\\",
                         "hkcu\\" + explorer + "main\\, default_",
                         "hkcu\\" + explorer + "main\\, do404search"};
    return SceneOf(scene);
}

// ---- Proxy

void SetProxy(RunningProgram& program, bool enabled, const char* address, const char* port) {
    auto& box = program.Get<CheckBox>("frmIE", "chkProxyEnabled");
    if (box.Checked() != enabled) box.Raise("Click");
    Type(program, "txtAddress", address);
    Type(program, "txtPort", port);
}

FaultScene ProxyScene() {
    PlainScene scene{"frmIE.cmdProxyApply_Click", "switched off, another server"};
    scene.open = [](RunningProgram& program) { SetProxy(program, false, "other.example", "81"); };
    scene.undo = [](MemoryMachine& machine) {
        GiveOnPage(machine, "frmIE.cmdProxyApply_Click", [](RunningProgram& program) {
            SetProxy(program, true, "proxy.example", "8080");
        });
    };
    return SceneOf(scene);
}

// ---- Choices

struct Choice {
    const char* command;
    const char* list;
    const char* combo;
    const char* row;
    const char* before;
    const char* after;
};
constexpr Choice Choices[] = {
    {"frmIE.cmdProtocolDefaultsApply_Click", "lstvProtocolDefaults", "cmbProtocolDefaults", "ftp",
     "Internet", "Restricted Sites"},
    {"frmIE.cmdSecurityZoneApply_Click", "lstvSecurityZone", "cmbSecurityZone",
     "Download unsigned ActiveX controls", "Disabled", "Prompt"},
};

// An entry that stands there already leaves the button disabled: another one comes before it.
void Choose(RunningProgram& program, const Choice& choice, const char* entry) {
    ListView& list = program.Get<ListView>("frmIE", choice.list);
    for (std::size_t i = 0; i < list.RowCount(); ++i) {
        if (list.Row(i).Text(0) == choice.row) list.UserSelect(&list.Row(i));
    }
    auto& combo = program.Get<ComboBox>("frmIE", choice.combo);
    for (const std::string& each :
         {std::string(choice.before), std::string(choice.after), std::string(entry)}) {
        const auto& entries = combo.Entries();
        const auto found = std::find(entries.begin(), entries.end(), each);
        combo.UserSelect(static_cast<int>(found - entries.begin()));
    }
    program.desktop.answers = {MessageAnswer::Yes};
}

FaultScene ChoiceScene(const Choice& choice) {
    PlainScene scene{choice.command, "another choice"};
    scene.open = [choice](RunningProgram& program) { Choose(program, choice, choice.after); };
    scene.undo = [choice](MemoryMachine& machine) {
        GiveOnPage(machine, choice.command,
                   [choice](RunningProgram& program) { Choose(program, choice, choice.before); });
    };
    return SceneOf(scene);
}

}  // namespace

std::vector<FaultRow> BrowserSettingRows() {
    std::vector<FaultRow> rows = {
        {"frmIE.cmdApply_Click", [] { return std::vector{AddressScene()}; }},
        {"frmIE.cmdProxyApply_Click", [] { return std::vector{ProxyScene()}; }},
    };
    for (const Choice& choice : Choices) {
        rows.push_back({choice.command, [choice] { return std::vector{ChoiceScene(choice)}; }});
    }
    return rows;
}

}  // namespace velkarix
