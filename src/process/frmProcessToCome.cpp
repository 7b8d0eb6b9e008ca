// The commands of the process page that aren't built yet say so.
#include "process/frmProcess.h"

namespace velkarix {

namespace {

void SayToCome(Application& application, const Button& command) {
    application.Tell(MessageIcon::Information,
                     command.Text() +
                         ": this command is not built yet. It comes with a later "
                         "version of the program.");
}

}  // namespace

void frmProcess::cmdKill_Click() {
    SayToCome(application_, cmdKill_);
}
void frmProcess::cmdDelete_Click() {
    SayToCome(application_, cmdDelete_);
}
void frmProcess::cmdReport_Click() {
    SayToCome(application_, cmdReport_);
}

}  // namespace velkarix
