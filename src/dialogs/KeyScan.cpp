#include "dialogs/KeyScan.h"

#include <algorithm>
#include <map>

namespace phial
{

KeyScan::KeyScan(std::span<const KeyDesign> keys)
{
    std::vector<KeyDesign> ordered(keys.begin(), keys.end());
    std::ranges::sort(ordered, {}, &KeyDesign::left);
    std::map<double, std::vector<std::int32_t>> byTop;
    for (const KeyDesign& key : ordered) {
        byTop[key.top].push_back(key.index);
    }
    for (auto& [top, row] : byTop) {
        rows_.push_back(std::move(row));
    }
}

void KeyScan::step()
{
    if (rows_.empty()) {
        return;
    }
    if (!key_) {
        row_ = (row_ + 1) % rows_.size();
        return;
    }
    *key_ = (*key_ + 1) % rows_[row_].size();
    if (*key_ == 0 && ++round_ == Rounds) {
        key_.reset();
    }
}

std::optional<std::int32_t> KeyScan::press()
{
    if (rows_.empty()) {
        return std::nullopt;
    }
    if (!key_) {
        key_ = 0;
        round_ = 0;
        return std::nullopt;
    }
    const std::int32_t index = rows_[row_][*key_];
    row_ = 0;
    key_.reset();
    return index;
}

std::vector<std::int32_t> KeyScan::lit() const
{
    if (rows_.empty()) {
        return {};
    }
    return key_ ? std::vector{rows_[row_][*key_]} : rows_[row_];
}

} // namespace phial
