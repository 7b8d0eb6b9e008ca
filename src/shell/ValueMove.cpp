#include "shell/ValueMove.h"

#include <algorithm>

#include "registry/KeyTree.h"
#include "registry/RegistryFile.h"
#include "shell/RegistryBackup.h"

namespace velkarix {
namespace {

RawValue BecomeText(const RawValue& value) {
    RawValue text{value.name, registryType::Sz, value.data};
    text.data.erase(std::find(text.data.begin(), text.data.end(), 0), text.data.end());
    text.data.push_back(0);
    return text;
}

bool TransferText(modRegistry& registry, const ValueMove& move) {
    return registry.SetStringValue(move.hive, move.destination, move.valueName,
                                   registry.GetStringValue(move.hive, move.source, move.valueName));
}

RawValue BecomeMark(const RawValue& value) {
    return {value.name, registryType::Binary, value.data.size() > 1 ? value.data : Bytes{0}};
}

bool TransferMark(modRegistry& registry, const ValueMove& move) {
    Bytes bytes;
    const bool read = registry.GetBinaryValue(move.hive, move.source, move.valueName, bytes, false);
    if (bytes.empty()) bytes.push_back(0);
    return registry.SetBinaryValue(move.hive, move.destination, move.valueName, bytes, !read);
}

// True when the move may go on: the value at the key is what is wanted there, or is kept as it was.
bool KeepWhereItChanges(Application& application, const ValueMove& move, const std::string& key,
                        const RawValue& value, const RawValue& wanted) {
    if (wanted.type == value.type && wanted.data == value.data) return true;
    std::string section;
    const ErrorCode exported = ExportSection(move.hive, key, {value}, section);
    return KeepOrTell(application, move.listName, move.operation, exported, section);
}

ErrorCode ReadDestination(Application& application, const ValueMove& move, RawValue& value) {
    return ReadRawValue(application.machine.registry, move.hive, move.destination, move.valueName,
                        value);
}

// A write that was refused reports success, so what stands decides.
ErrorCode CompareArrived(Application& application, const ValueMove& move, const RawValue& wanted) {
    RawValue standing;
    const ErrorCode read = ReadDestination(application, move, standing);
    if (read != error::Success) return read;
    return StandsAs(standing, wanted) ? error::Success : error::CantWrite;
}

}  // namespace

const ValueForm textForm = {BecomeText, TransferText};
const ValueForm markForm = {BecomeMark, TransferMark};

bool MoveValue(Application& application, const ValueMove& move, const ValueForm& form) {
    modRegistry& registry = application.registry;
    Registry& raw = application.machine.registry;
    const auto sayNotDeleted = [&](ErrorCode code) {
        registry.ShowValueNotDeleted(move.source, move.valueName, code);
        return false;
    };
    RawValue value;
    const ErrorCode read = ReadRawValue(raw, move.hive, move.source, move.valueName, value);
    if (read == error::FileNotFound) return false;
    if (read != error::Success) return sayNotDeleted(read);
    RawValue before;
    const ErrorCode there = ReadDestination(application, move, before);
    const bool isFree = there == error::FileNotFound;
    if (!isFree && there != error::Success) return sayNotDeleted(there);

    const RawValue wanted = form.become(value);
    if (!KeepWhereItChanges(application, move, move.source, value, wanted)) return false;
    if (!isFree && !KeepWhereItChanges(application, move, move.destination, before, wanted)) {
        return false;
    }
    if (!form.transfer(registry, move)) return false;
    const ErrorCode compared = CompareArrived(application, move, wanted);
    if (compared == error::Success) {
        registry.DeleteValue(move.hive, move.source, move.valueName, false);
        return true;
    }
    if (isFree) {
        registry.DeleteValue(move.hive, move.destination, move.valueName, true);
    } else {
        WriteRawValue(raw, move.hive, move.destination, before);
    }
    return sayNotDeleted(compared);
}

}  // namespace velkarix
