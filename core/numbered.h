#pragma once

#include <array>
#include <cassert>
#include <cstddef>

namespace cellora {

/// An array whose elements are numbered 1 to N, as cells, buttons and ranks are.
template <typename T, int N>
class Numbered final {
public:
    static constexpr int size() { return N; }

    T& operator[](int intIndex) { return items_[Offset(intIndex)]; }
    const T& operator[](int intIndex) const { return items_[Offset(intIndex)]; }

    void fill(const T& value) { items_.fill(value); }

    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    bool operator==(const Numbered&) const = default;

private:
    static std::size_t Offset(int intIndex) {
        assert(intIndex >= 1 && intIndex <= N);
        return static_cast<std::size_t>(intIndex - 1);
    }

    std::array<T, static_cast<std::size_t>(N)> items_{};
};

} // namespace cellora
