#pragma once

#include "core/String.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace learning
{

/// The tasks that a pupil missed and has not solved since: the next rounds begin with them. They are kept in
/// this account's settings for each name and each program, and never handed in.
///
/// Tasks are told apart by a name that the app gives them, case included.
class MissedTasks
{
public:
    /// So many are kept, the latest; the oldest is forgotten for one more.
    static constexpr std::size_t Most = 50;

    /// What is known of the pupil of that name. Settings that cannot be read give nothing.
    explicit MissedTasks(phial::StringView pupil);

    bool has(phial::StringView task) const;
    /// How many there are of which that is true, such as that they can still be asked.
    std::size_t count(const std::function<bool(phial::StringView task)>& counts) const;
    std::size_t count() const { return tasks_.size(); }

    /// Each of these keeps what it changes. A failure to keep it is silent: nothing but an order is lost.
    void missed(phial::StringView task);
    void solved(phial::StringView task);
    void forget();

private:
    void save() const;

    phial::String path_;
    std::vector<phial::String> tasks_; ///< the latest last
};

} // namespace learning
