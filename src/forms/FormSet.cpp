#include "forms/FormSet.h"

#include <algorithm>
#include <utility>

namespace velkarix {

namespace {

auto Named(std::string_view name) {
    return [name](const std::unique_ptr<Form>& form) { return form->Name() == name; };
}

}  // namespace

FormSet::~FormSet() {
    UnloadAll({});
}

void FormSet::Define(std::string name, Factory make) {
    definitions_.push_back({std::move(name), std::move(make)});
}

std::vector<std::string> FormSet::Names() const {
    std::vector<std::string> names;
    for (const Definition& each : definitions_) names.push_back(each.name);
    return names;
}

Form* FormSet::Loaded(std::string_view name) const {
    const auto found = std::find_if(loaded_.begin(), loaded_.end(), Named(name));
    return found == loaded_.end() ? nullptr : found->get();
}

Form* FormSet::LoadAnew(std::string_view name, PageHost* host,
                        const std::function<void(Form&)>& prepare) {
    const auto definition =
        std::find_if(definitions_.begin(), definitions_.end(),
                     [name](const Definition& each) { return each.name == name; });
    if (definition == definitions_.end()) return nullptr;
    loaded_.push_back(definition->make());
    Form& form = *loaded_.back();
    if (prepare) prepare(form);
    desktop_.Create(form, host);
    form.Form_Load();
    return &form;
}

Form* FormSet::Load(std::string_view name, PageHost* host) {
    Form* form = Loaded(name);
    return form != nullptr ? form : LoadAnew(name, host, {});
}

Form* FormSet::Show(std::string_view name, PageHost* host) {
    Form* form = Load(name, host);
    if (form != nullptr) desktop_.Show(*form);
    return form;
}

void FormSet::ShowModal(std::string_view name, Form& owner,
                        const std::function<void(Form&)>& prepare) {
    if (Loaded(name) != nullptr) return;
    Form* form = LoadAnew(name, nullptr, prepare);
    if (form == nullptr) return;
    desktop_.ShowModal(*form, owner);
    Unload(name);
}

bool FormSet::Unload(std::string_view name) {
    const auto found = std::find_if(loaded_.begin(), loaded_.end(), Named(name));
    if (found == loaded_.end()) return false;
    // Out of the set first: what the form's own unload asks sees it as gone.
    const std::unique_ptr<Form> form = std::move(*found);
    loaded_.erase(found);
    form->Form_Unload();
    desktop_.Destroy(*form);
    return true;
}

void FormSet::UnloadAll(std::string_view last) {
    while (!loaded_.empty()) {
        const auto next = std::find_if_not(loaded_.begin(), loaded_.end(), Named(last));
        const std::string name = next == loaded_.end() ? std::string(last) : (*next)->Name();
        Unload(name);
    }
}

}  // namespace velkarix
