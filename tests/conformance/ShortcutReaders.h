// What the tests of shortcut files share: the two readers, and what both are to give.
#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "tests/conformance/Home.h"

namespace velkarix {

inline std::optional<Shortcut> ReadBy(ShortcutReader& reader, const std::string& path) {
    Shortcut shortcut;
    return reader.Read(path, shortcut) ? std::optional(shortcut) : std::nullopt;
}

inline void PrintTo(const Shortcut& shortcut, std::ostream* stream) {
    *stream << '[' << shortcut.targetPath << "] [" << shortcut.arguments << "] ["
            << shortcut.iconLocation << ']';
}

class ShortcutConformance : public Conformance {
  protected:
    void SetUp() override {
        ASSERT_NE(scriptShell_, nullptr);
        ASSERT_NE(shellLink_, nullptr);
    }

    // Both readers give this.
    void ExpectRead(const std::string& path, const Shortcut& expected) {
        EXPECT_EQ(ReadBy(*shellLink_, path), expected) << path;
        // Where the automation object can't load files, it says so.
        EXPECT_EQ(ReadBy(*scriptShell_, path),
                  home_->ScriptShellReads() ? std::optional(expected) : std::nullopt)
            << path;
    }
    // Neither reader finds a shortcut, and what the caller had stays.
    void ExpectNone(const std::string& path) {
        const Shortcut before{"before", "b", "c,1"};
        for (ShortcutReader* reader : {scriptShell_.get(), shellLink_.get()}) {
            Shortcut shortcut = before;
            EXPECT_FALSE(reader->Read(path, shortcut)) << path;
            EXPECT_EQ(shortcut, before) << path;
        }
    }
    // Makes and reads one.
    void ExpectKept(const Shortcut& shortcut) {
        home_->MakeShortcut(In("a.lnk"), shortcut);
        ExpectRead(In("a.lnk"), shortcut);
    }

    std::unique_ptr<ShortcutReader> scriptShell_ = machine_.shortcuts.MakeScriptShell();
    std::unique_ptr<ShortcutReader> shellLink_ = machine_.shortcuts.MakeShellLink();
};

}  // namespace velkarix
