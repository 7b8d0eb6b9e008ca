#include "shell/modMain.h"

#include "shell/Application.h"
#include "shell/clsPrevInstance.h"

namespace velkarix {

namespace {

void ActivatePrevInstance(Application& application) {
    clsPrevInstance(application.machine.windows, application.desktop).ShowApp(ApplicationTitle);
}

}  // namespace

void Main(Application& application) {
    // The name of the mutex by which instances know of each other.
    if (application.machine.windows.CreateMutexA("VelkarixInstance")) {
        ActivatePrevInstance(application);
        return;
    }
    application.desktop.SetApplicationTitle(ApplicationTitle);
    application.forms.Show("frmMain");
    if (!application.Ended()) application.desktop.RunEventLoop();
    application.forms.UnloadAll("frmMain");
}

}  // namespace velkarix
