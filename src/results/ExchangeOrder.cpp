#include "results/ExchangeOrder.h"

#include <bit>

namespace phial
{

namespace
{

/// Counts by index, with sums over a beginning and the search for the n-th one, each in log n steps.
class Tally
{
public:
    explicit Tally(std::size_t size) : sums_(size + 1) {}

    void add(std::size_t index, std::ptrdiff_t amount)
    {
        for (std::size_t node = index + 1; node < sums_.size(); node += lowestBit(node)) {
            sums_[node] += amount;
        }
    }

    /// The sum of all before `index`.
    std::size_t before(std::size_t index) const
    {
        std::ptrdiff_t sum = 0;
        for (std::size_t node = index; node > 0; node -= lowestBit(node)) {
            sum += sums_[node];
        }
        return static_cast<std::size_t>(sum);
    }

    /// The index at which the sum exceeds `amount`.
    std::size_t indexOf(std::size_t amount) const
    {
        std::size_t node = 0;
        auto rest = static_cast<std::ptrdiff_t>(amount);
        for (std::size_t step = std::bit_floor(sums_.size() - 1); step > 0; step /= 2) {
            if (node + step < sums_.size() && sums_[node + step] <= rest) {
                node += step;
                rest -= sums_[node];
            }
        }
        return node;
    }

private:
    static std::size_t lowestBit(std::size_t node) { return node & (~node + 1); }

    std::vector<std::ptrdiff_t> sums_;
};

/// Entries of one rank in the order in which they stand in the list.
struct Group {
    std::vector<std::size_t> members;
    /// For each member how many entries of greater rank stand before it.
    std::vector<std::size_t> greaterBefore;
};

std::vector<Group> groupsOf(std::span<const std::size_t> ranks)
{
    const std::size_t count = ranks.empty() ? 0 : *std::ranges::max_element(ranks) + 1;
    std::vector<Group> groups(count);
    Tally seen(count);
    for (std::size_t entry = 0; entry < ranks.size(); ++entry) {
        Group& group = groups[ranks[entry]];
        group.members.push_back(entry);
        group.greaterBefore.push_back(entry - seen.before(ranks[entry] + 1));
        seen.add(ranks[entry], 1);
    }
    return groups;
}

/// Writes the members of a group in their final order. `greater` is the number of entries of greater rank.
///
/// The group grows at its end, one member after the other, and each entry of greater rank that comes moves
/// its first member to the end. Read backwards: the last member stands before the group's beginning, turned
/// by the number of greater entries behind it; without it the one before it stands likewise, and so on.
void arrange(const Group& group, std::size_t greater, std::span<std::size_t> slots)
{
    Tally stillOpen(slots.size());
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
        stillOpen.add(slot, 1);
    }
    std::size_t beginning = 0; // counted in the slots that are still open
    for (std::size_t size = slots.size(); size > 0; --size) {
        const std::size_t turns = greater - group.greaterBefore[size - 1];
        greater = group.greaterBefore[size - 1];
        beginning = (beginning + size - turns % size) % size;
        const std::size_t last = (beginning + size - 1) % size;
        const std::size_t slot = stillOpen.indexOf(last);
        slots[slot] = group.members[size - 1];
        stillOpen.add(slot, -1);
        beginning = last < beginning ? beginning - 1 : 0;
    }
}

} // namespace

// The exchange sort can be seen from the places instead of the passes: what stands at place j meets the
// entries that the passes carry along, keeps the lesser one each time and hands on the greater one. So the
// places up to j together hold the first j entries sorted, and entry j joins them like this: it goes behind
// all that are not less; of each lesser rank the first member goes to the end of its group.
std::vector<std::size_t> exchangeOrderOfRanks(std::span<const std::size_t> ranks)
{
    const std::vector<Group> groups = groupsOf(ranks);
    std::vector<std::size_t> order(ranks.size());
    std::size_t greater = 0;
    for (std::size_t rank = groups.size(); rank-- > 0;) {
        const Group& group = groups[rank];
        arrange(group, greater, std::span(order).subspan(greater, group.members.size()));
        greater += group.members.size();
    }
    return order;
}

} // namespace phial
