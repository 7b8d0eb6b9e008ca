#include "shell/Suspicion.h"

namespace velkarix {

bool IsSuspiciousClsid(const Application& application, std::string_view text) {
    return ListContains(application.SusCLSIDList, text);
}

bool IsSuspiciousFileHash(const Application& application, std::string_view text) {
    return ListContains(application.SusProcessList, text);
}

}  // namespace velkarix
