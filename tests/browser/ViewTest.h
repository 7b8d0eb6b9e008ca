// A view of the browser page alone, on a small page of a program in memory, and what its tests ask.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

template <typename ViewClass>
class ViewPage : public Form {
  public:
    explicit ViewPage(Application& application)
        : Form("frmView", "View", FormKind::Page), view(application) {
        SetControls(view.Controls());
        SetLayout(view.ViewLayout());
    }
    ViewClass view;
};

template <typename ViewClass>
class ViewTest : public testing::Test {
  protected:
    template <typename ControlClass>
    ControlClass& Get(const char* name) {
        return dynamic_cast<ControlClass&>(*page.Find(name));
    }
    bool Click(const char* control) { return page.Find(control)->Raise("Click"); }
    bool IsEnabled(const char* control) { return page.Find(control)->Enabled(); }
    const std::string& Value(const char* box) { return Get<TextBox>(box).Value(); }
    void Type(const char* box, const std::string& text) { Get<TextBox>(box).TakeInput(text); }

    // The calls that changed something in the registry, or were to, in order.
    std::vector<std::string> Changes() {
        const std::set<std::string> changing = {"RegSetValueExA", "RegDeleteKeyA",
                                                "RegDeleteValueA"};
        std::vector<std::string> changes;
        for (const Call& call : program.machine.Journal().Calls()) {
            if (changing.contains(call.name)) changes.push_back(call.name + " " + call.arguments);
        }
        return changes;
    }
    std::vector<std::string> Told() {
        std::vector<std::string> texts;
        for (const Message& each : program.desktop.messages) texts.push_back(each.text);
        return texts;
    }
    // The last message is this one, with the program's title.
    void ExpectTold(const std::string& text, MessageIcon icon,
                    MessageButtons buttons = MessageButtons::Ok) {
        ASSERT_FALSE(program.desktop.messages.empty());
        const Message& message = program.desktop.messages.back();
        EXPECT_EQ(message.text, text);
        EXPECT_EQ(message.title, "Velkarix");
        EXPECT_EQ(message.icon, icon);
        EXPECT_EQ(message.buttons, buttons);
    }
    std::string Stored(Hive hive, const std::string& key, const std::string& name) {
        return program.machine.registry.TextAt(hive, key, name).value_or("(missing)");
    }
    std::string ErrorText(ErrorCode code) {
        return program.application.registry.GetSystemErrorText(code);
    }

    // The names of the controls in tab order.
    std::vector<std::string> TabOrder() {
        std::vector<std::string> names;
        for (const Control* control : page.Controls()) names.push_back(control->Name());
        return names;
    }
    void ExpectEachControlPlacedOnce() {
        std::multiset<const Control*> placed;
        const std::function<void(const Layout&)> collect = [&](const Layout& layout) {
            if (layout.control != nullptr) placed.insert(layout.control);
            for (const Layout& child : layout.children) collect(child);
        };
        collect(page.FormLayout());
        for (const Control* control : page.Controls()) {
            EXPECT_EQ(placed.count(control), 1u) << control->Name();
        }
        EXPECT_EQ(placed.size(), page.Controls().size());
    }

    TestProgram program;
    ViewPage<ViewClass> page{program.application};
    ViewClass& view = page.view;
};

}  // namespace velkarix
