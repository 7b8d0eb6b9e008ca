// The only road to the registry: fourteen operations over the system's calls. A location is a hive
// and the path of a key below it, without a backslash in front; an empty value name is the key's
// default value. Writing and deleting tell the user at once when they fail; reading never does.
// Every key that is opened is closed again: a handle left open would do nothing but leak.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Bytes.h"
#include "forms/Desktop.h"
#include "platform/Machine.h"
#include "registry/RegValueEntry.h"
#include "registry/UnreadPlaces.h"

namespace velkarix {

class modRegistry {
  public:
    // `title` stands over the message boxes. `unread` hears which keys could be read.
    modRegistry(const Machine& machine, Desktop& desktop, std::string title,
                UnreadPlaces* unread = nullptr);

    // ---- Writing. Each makes the key when it is missing. True unless the key can't be created,
    // also when the value itself is refused.

    // REG_SZ, written with its NUL.
    bool SetStringValue(Hive hive, const std::string& key, const std::string& valueName,
                        const std::string& text);
    // REG_BINARY. With `writeZeros` as many zero bytes are written in place of `bytes`.
    bool SetBinaryValue(Hive hive, const std::string& key, const std::string& valueName,
                        const Bytes& bytes, bool writeZeros);
    // REG_DWORD. Shows no message.
    bool SetDwordValue(Hive hive, const std::string& key, const std::string& valueName,
                       std::int32_t value);
    // The same; false also when the number doesn't stand there afterwards.
    bool StoreDwordValue(Hive hive, const std::string& key, const std::string& valueName,
                         std::int32_t value);
    bool CreateKey(Hive hive, const std::string& key);

    // ---- Deleting. True when it is gone; `quiet` leaves out the message.

    // Whether a key with subkeys can be deleted is the system's decision.
    bool DeleteKey(Hive hive, const std::string& key, bool quiet);
    bool DeleteValue(Hive hive, const std::string& key, const std::string& valueName, bool quiet);
    // Empties the key of all subkeys and keeps the key. Serves events meanwhile. True when the
    // key could be opened, whatever couldn't be deleted; false when links lead round in a circle.
    bool DeleteSubKeys(Hive hive, const std::string& key);

    // Copies values and subkeys. The destination is made below `destHive` but opened below
    // `srcHive`, so copying works inside one hive only. True when all was copied.
    bool CopyKey(Hive srcHive, const std::string& srcKey, Hive destHive,
                 const std::string& destKey);

    // ---- Reading. What can't be read is empty, 0 or false, and is told to UnreadPlaces unless it
    // isn't there.

    // Adds the names of the subkeys to `names`. One with a NUL in it leads to no key. Of equal
    // ones the first stays: the characters of the others that the code page lacks make them alike,
    // and lead to it as well.
    void EnumSubKeys(Hive hive, const std::string& key, std::vector<std::string>& names);
    // The values in the system's order. An empty key is the hive itself. Of names that differ
    // only in case the first stays.
    std::vector<RegValueEntry> EnumValues(Hive hive, const std::string& key);
    // A value of any type as text up to its first NUL.
    std::string GetStringValue(Hive hive, const std::string& key, const std::string& valueName);
    // The first four bytes as a number. `missing` becomes true when the key is there and the
    // value can't be read as one; it isn't touched otherwise.
    std::int32_t GetDwordValue(Hive hive, const std::string& key, const std::string& valueName,
                               bool& missing);
    // True when `bytes` got more than one byte, or exactly 552 of them with `expect552`. A value
    // of one byte gives false though `bytes` holds it.
    bool GetBinaryValue(Hive hive, const std::string& key, const std::string& valueName,
                        Bytes& bytes, bool expect552);

    // What the user reads when a key or value can't be deleted: for a move that finds out before it
    // deletes that it mustn't.
    void ShowKeyNotDeleted(const std::string& key, ErrorCode code);
    void ShowValueNotDeleted(const std::string& key, const std::string& valueName, ErrorCode code);

    // The system's text for a code, with the line break at its end; empty when it has none.
    std::string GetSystemErrorText(ErrorCode code);

  private:
    // `code` is what a look at the key came to; `look` says which.
    void NoteRead(Hive hive, const std::string& key, const std::string& look, ErrorCode code);
    bool SetValue(Hive hive, const std::string& key, const std::string& valueName,
                  std::uint32_t type, const Bytes& data, bool quiet);
    // False when the walk must end: the tree is deeper than any real one.
    bool DeleteBelow(Hive hive, const std::string& key, int level, bool& opened);
    void ShowValueFailure(const char* what, const std::string& key, const std::string& valueName,
                          ErrorCode code);
    void ShowFailure(const char* what, const std::string& detail, ErrorCode code);

    Registry& registry_;
    SystemFacts& system_;
    Desktop& desktop_;
    std::string title_;
    UnreadPlaces* unread_;
};

}  // namespace velkarix
