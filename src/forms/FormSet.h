// The program's forms: one shared instance of each, made on first use, loaded and unloaded by
// name. Unloading destroys a form's controls and state; showing it again loads it afresh.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Desktop.h"

namespace velkarix {

class FormSet {
  public:
    using Factory = std::function<std::unique_ptr<Form>()>;

    explicit FormSet(Desktop& desktop) : desktop_(desktop) {}
    ~FormSet();
    FormSet(const FormSet&) = delete;
    FormSet& operator=(const FormSet&) = delete;

    void Define(std::string name, Factory make);
    // Of all forms that are defined, in that order: whoever has to go through every form, as the
    // tests of all commands do, needs no list of its own.
    std::vector<std::string> Names() const;
    // Null when no form of that name is loaded.
    Form* Loaded(std::string_view name) const;
    // Loads the form when it isn't; inside `host` when it is a page. Null when no form of that name
    // is defined.
    Form* Load(std::string_view name, PageHost* host = nullptr);
    // The same, and shows it.
    Form* Show(std::string_view name, PageHost* host = nullptr);
    // Shows an instance of its own modally and unloads it when it closes. `prepare` sets the
    // form's properties before its load.
    void ShowModal(std::string_view name, Form& owner,
                   const std::function<void(Form&)>& prepare = {});
    // False when no form of that name is loaded.
    bool Unload(std::string_view name);
    // Unloads all, the form `last` at the end.
    void UnloadAll(std::string_view last);

  private:
    struct Definition {
        std::string name;
        Factory make;
    };
    Form* LoadAnew(std::string_view name, PageHost* host,
                   const std::function<void(Form&)>& prepare);

    Desktop& desktop_;
    std::vector<Definition> definitions_;
    std::vector<std::unique_ptr<Form>> loaded_;  // in the order of their loading
};

}  // namespace velkarix
