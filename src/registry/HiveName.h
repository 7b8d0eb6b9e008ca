// The names that people and registry files know the hives by.
#pragma once

#include "platform/Registry.h"

namespace velkarix {

constexpr const char* NameOf(Hive hive) {
    switch (hive) {
        case Hive::ClassesRoot:
            return "HKEY_CLASSES_ROOT";
        case Hive::CurrentUser:
            return "HKEY_CURRENT_USER";
        case Hive::LocalMachine:
            break;
    }
    return "HKEY_LOCAL_MACHINE";
}

}  // namespace velkarix
