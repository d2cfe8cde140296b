// Sets of rows or columns as constants, for minors: bit i stands for index i.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace qorm::measures {

// The indices in a set, ascending.
template <unsigned set>
constexpr auto membersOf() {
    std::array<int, std::popcount(set)> members{};
    std::size_t next = 0;
    for (int i = 0; next < members.size(); ++i) {
        if (set >> i & 1) members[next++] = i;
    }
    return members;
}

// Place i among the members, as a constant.
template <std::size_t i>
inline constexpr std::integral_constant<std::size_t, i> at{};

constexpr unsigned without(unsigned set, int index) {
    return set & ~(1U << index);
}

// The sets of k out of n indices, by their value as numbers.
constexpr int countOfSets(int n, int k) {
    return k == 0 ? 1 : countOfSets(n, k - 1) * (n - k + 1) / k;
}

template <int n, int k>
constexpr auto setsOf() {
    std::array<unsigned, countOfSets(n, k)> sets{};
    std::size_t next = 0;
    for (unsigned set = 0; set < 1U << n; ++set) {
        if (std::popcount(set) == k) sets[next++] = set;
    }
    return sets;
}

template <unsigned set>
using Set = std::integral_constant<unsigned, set>;

// A value of type V for each set of k out of n indices.
template <class V, int n, int k>
class BySet {
public:
    template <unsigned set>
    V& operator[](Set<set>) {
        constexpr std::size_t place = placeOf<set>();
        return values[place];
    }
    template <unsigned set>
    const V& operator[](Set<set>) const {
        constexpr std::size_t place = placeOf<set>();
        return values[place];
    }

private:
    template <unsigned set>
    static constexpr std::size_t placeOf() {
        constexpr auto sets = setsOf<n, k>();
        return static_cast<std::size_t>(std::find(sets.begin(), sets.end(), set) - sets.begin());
    }

    V values[countOfSets(n, k)];
};

// work(set) for each set of k out of n indices.
template <int n, int k, class Work>
void forEachSet(const Work& work) {
    constexpr auto sets = setsOf<n, k>();
    [&]<std::size_t... place>(std::index_sequence<place...>) {
        (work(Set<sets[place]>()), ...);
    }
    (std::make_index_sequence<sets.size()>());
}

} // namespace qorm::measures
