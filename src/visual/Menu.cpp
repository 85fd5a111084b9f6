#include "visual/Menu.h"

#include "core/RuntimeError.h"
#include "visual/PropertyRows.h"

#include <algorithm>

namespace phial
{

struct Menu::Properties {
    static constexpr rows::Table Table{
        rows::property<u"NAME">(&Menu::name_).still(), rows::readOnly<u"Index">(&Menu::Index),
        rows::property<u"Tag">(&Menu::tag_).still(),   rows::property<u"Caption">(&Menu::caption_),
        rows::property<u"Enabled">(&Menu::enabled_),   rows::property<u"Visible">(&Menu::visible_),
        rows::property<u"Checked">(&Menu::checked_),
    };
    static constexpr auto Effect = &Menu::report;
};

Menu::Menu(String name, String caption, std::int32_t index)
    : name_(std::move(name)), index_(index), caption_(std::move(caption))
{
}

// One line a setter.
// clang-format off
void Menu::Caption(String value) { rows::set<Properties, u"Caption">(*this, std::move(value)); }
void Menu::Enabled(bool value) { rows::set<Properties, u"Enabled">(*this, value); }
void Menu::Visible(bool value) { rows::set<Properties, u"Visible">(*this, value); }
void Menu::Checked(bool value) { rows::set<Properties, u"Checked">(*this, value); }
// clang-format on

std::shared_ptr<Menu> Menu::add(const std::shared_ptr<Menu>& entry)
{
    if (!entry) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    entry->above_ = this;
    entries_.push_back(entry);
    report();
    return entry;
}

std::shared_ptr<Menu> Menu::add(String name, String caption, std::int32_t index)
{
    return add(std::make_shared<Menu>(std::move(name), std::move(caption), index));
}

void Menu::remove(const Menu& entry)
{
    const auto found = std::ranges::find_if(entries_, [&](const auto& one) { return one.get() == &entry; });
    if (found == entries_.end()) {
        return;
    }
    const auto removed = *found; // outlives the report
    entries_.erase(found);
    removed->above_ = nullptr;
    report();
}

Menu::~Menu()
{
    for (const auto& entry : entries_) {
        entry->above_ = nullptr;
    }
}

std::shared_ptr<Menu> Menu::find(StringView name, std::int32_t index) const
{
    const auto found =
        std::ranges::find_if(entries_, [&](const auto& entry) { return entry->isCalled(name, index); });
    return found == entries_.end() ? nullptr : *found;
}

std::shared_ptr<Menu> Menu::findBelow(StringView name, std::int32_t index) const
{
    for (const auto& entry : entries_) {
        if (entry->isCalled(name, index)) {
            return entry;
        }
        if (auto found = entry->findBelow(name, index)) {
            return found;
        }
    }
    return nullptr;
}

std::shared_ptr<Menu> Menu::entry(StringView name, std::int32_t index) const
{
    auto found = find(name, index);
    if (!found) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return found;
}

std::int32_t Menu::upperBound(StringView name) const
{
    std::int32_t greatest = -1;
    for (const auto& entry : entries_) {
        if (equalsIgnoringCase(entry->name_, name)) {
            greatest = std::max(greatest, entry->index_);
        }
    }
    if (greatest < 0) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return greatest;
}

std::shared_ptr<Menu> Menu::load(StringView name, std::int32_t index)
{
    if (find(name, index)) {
        throw RuntimeError(360, u"Object already loaded");
    }
    std::shared_ptr<Menu> original;
    auto behind = entries_.end();
    for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) {
        if (!equalsIgnoringCase((*entry)->name_, name)) {
            continue;
        }
        behind = entry + 1;
        if (!original || (*entry)->index_ < original->index_) {
            original = *entry;
        }
    }
    if (!original) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    auto copy = std::make_shared<Menu>(original->name_, original->caption_, index);
    copy->tag_ = original->tag_;
    copy->enabled_ = original->enabled_;
    copy->checked_ = original->checked_;
    copy->visible_ = false;
    copy->above_ = this;
    entries_.insert(behind, copy);
    report();
    return copy;
}

void Menu::unload(StringView name, std::int32_t index)
{
    remove(*entry(name, index));
}

void Menu::inputClick()
{
    if (!enabled_ || !visible_) {
        return;
    }
    const auto self = shared_from_this(); // a handler may take the entry away
    Click.raise(index_);
    for (Menu* menu = above_; menu; menu = menu->above_) {
        menu->Chosen.raise(*this);
    }
}

void Menu::report()
{
    for (Menu* menu = this; menu; menu = menu->above_) {
        menu->changed.raise();
    }
}

MemberTable Menu::members() const
{
    return rows::membersOf<Properties>();
}

} // namespace phial
