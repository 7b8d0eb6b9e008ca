#include "DefineForms.h"

#include <memory>

#include "browser/frmIE.h"
#include "installed/frmAddRemove.h"
#include "options/FullReport.h"
#include "options/frmOptions.h"
#include "process/VerdictCache.h"
#include "process/frmProcess.h"
#include "shell/Application.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmviewInfo.h"
#include "startup/frmStartup.h"
#include "utilities/frmUtilities.h"

namespace velkarix {

namespace {

template <typename FormClass>
void DefineForm(Application& application, const char* name) {
    application.forms.Define(name,
                             [&application] { return std::make_unique<FormClass>(application); });
}

}  // namespace

void DefineForms(Application& application) {
    DefineForm<frmMain>(application, "frmMain");
    DefineForm<frmAbout>(application, "frmAbout");
    DefineForm<frmIE>(application, "frmIE");
    DefineForm<frmAddRemove>(application, "frmAddRemove");
    DefineForm<frmUtilities>(application, "frmUtilities");
    DefineForm<frmviewInfo>(application, "frmviewInfo");
    // The cache lives as long as the program: a page that is left and entered hashes nothing again.
    application.forms.Define("frmProcess",
                             [&application, cache = std::make_shared<VerdictCache>()] {
                                 return std::make_unique<frmProcess>(application, *cache);
                             });
    // The report runs on when its page is left.
    application.forms.Define("frmOptions",
                             [&application, report = std::make_shared<FullReport>(application)] {
                                 return std::make_unique<frmOptions>(application, *report);
                             });
    // The user is told once that shortcuts can't be read, not each time that the page is entered.
    application.forms.Define("frmStartup", [&application, told = std::make_shared<bool>(false)] {
        return std::make_unique<frmStartup>(application, *told);
    });
}

}  // namespace velkarix
