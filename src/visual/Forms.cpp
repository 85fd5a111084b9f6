#include "visual/Forms.h"

#include "core/RuntimeError.h"
#include "visual/Form.h"

#include <algorithm>
#include <utility>

namespace phial
{

std::shared_ptr<Form> Forms::Item(std::size_t index) const
{
    if (index >= loaded_.size()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return loaded_[index];
}

std::shared_ptr<Form> Forms::Item(StringView name) const
{
    const auto found = std::ranges::find_if(
        loaded_, [name](const auto& form) { return equalsIgnoringCase(form->NAME(), name); });
    return found == loaded_.end() ? nullptr : *found;
}

std::shared_ptr<Form> Forms::innermostModal() const
{
    return modal_.empty() ? nullptr : modal_.back().lock();
}

void Forms::unloadAll()
{
    const auto modal = modal_;
    for (auto form = modal.rbegin(); form != modal.rend(); ++form) {
        if (const auto open = form->lock()) {
            open->Unload();
        }
    }
    const auto loaded = loaded_;
    for (auto form = loaded.rbegin(); form != loaded.rend(); ++form) {
        (*form)->Unload();
    }
}

void Forms::closeAll()
{
    const auto loaded = std::exchange(loaded_, {});
    modal_.clear();
    active_.reset();
    for (auto form = loaded.rbegin(); form != loaded.rend(); ++form) {
        (*form)->hostEnds();
    }
}

void Forms::loaded(const std::shared_ptr<Form>& form)
{
    loaded_.push_back(form);
}

void Forms::unloaded(const Form& form)
{
    std::erase_if(loaded_, [&](const auto& entry) { return entry.get() == &form; });
}

void Forms::deactivated(const Form& form)
{
    if (active_.lock().get() == &form) {
        active_.reset();
    }
}

void Forms::bringBack() const
{
    const auto loaded = loaded_;
    for (const auto& form : loaded) {
        if (!form->backdrop()) {
            form->ZOrder();
        }
    }
    if (const auto latest = latest_.lock(); latest && latest->Visible()) {
        latest->ZOrder();
        latest->SetFocus();
    }
}

void Forms::modalBegun(const std::shared_ptr<Form>& form)
{
    modal_.push_back(form);
}

void Forms::modalEnded(const Form& form)
{
    std::erase_if(modal_, [&](const auto& entry) { return entry.lock().get() == &form; });
}

} // namespace phial
