#pragma once

#include <QtGlobal>

#include <random>

/// Throws that follow from a seed, the same in every build (which the distributions of the C++ library are not).
class Dice {
public:
    explicit Dice(quint32 seed)
        : m_engine(seed) {}

    /// From 0 up to, but without, `count`.
    int below(int count) { return static_cast<int>(m_engine() % static_cast<quint32>(count)); }

    int between(int least, int most) { return least + below(most - least + 1); }

    bool oneIn(int count) { return below(count) == 0; }

    template <class List>
    auto pick(const List& list) {
        return *(std::begin(list) + below(static_cast<int>(std::size(list))));
    }

private:
    std::mt19937 m_engine;
};
