#include "shell/ValueMove.h"

#include <algorithm>
#include <vector>

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

// A value that the move doesn't leave as it is, with its key.
struct ChangedValue {
    const std::string& key;
    const RawValue& value;
};

// True when the move may go on: what isn't what is wanted is kept as it was. All of it goes into
// the file at once, since nobody looks after what was written there before.
bool KeepWhatChanges(Application& application, const ValueMove& move,
                     const std::vector<ChangedValue>& values, const RawValue& wanted) {
    std::string sections;
    for (const auto& [key, value] : values) {
        if (wanted.type == value.type && wanted.data == value.data) continue;
        const ErrorCode exported = ExportSection(move.hive, key, {value}, sections);
        if (exported != error::Success) {
            return KeepOrTell(application, move.listName, move.operation, exported, {});
        }
    }
    return sections.empty() ||
           KeepOrTell(application, move.listName, move.operation, error::Success, sections);
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
    std::vector<ChangedValue> values = {{move.source, value}};
    if (!isFree) values.push_back({move.destination, before});
    if (!KeepWhatChanges(application, move, values, wanted)) return false;
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
