// The protection from malicious ActiveX controls on the utilities page.
#include <cstdint>

#include "utilities/ActiveXList.h"
#include "utilities/frmUtilities.h"

namespace velkarix {

namespace {

// The browser never loads a control that has this flag.
constexpr std::int32_t KillBit = 0x400;

}  // namespace

void frmUtilities::cmdActiveXProtect_Click() {
    RunActiveXCommand(
        [&registry = application_.registry](const std::string& key) {
            registry.CreateKey(Hive::LocalMachine, key);
            registry.SetDwordValue(Hive::LocalMachine, key, "Compatibility Flags", KillBit);
        },
        "Protection activated Successfully.");
}

void frmUtilities::cmdActiveXRemove_Click() {
    RunActiveXCommand(
        [&registry = application_.registry](const std::string& key) {
            registry.DeleteKey(Hive::LocalMachine, key, false);
        },
        "Protection removed Successfully.");
}

void frmUtilities::RunActiveXCommand(const std::function<void(const std::string& key)>& work,
                                     const std::string& done) {
    const ErrorCode result =
        ForEachListedKey(application_.machine.files,
                         application_.settings.InstallFolder() + "\\MalActivex.scl", work);
    if (result != error::Success) {
        application_.Tell(MessageIcon::Critical,
                          "Error occurred: " + application_.registry.GetSystemErrorText(result));
        return;
    }
    application_.Tell(MessageIcon::Information, done);
}

}  // namespace velkarix
