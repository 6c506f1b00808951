#pragma once

#include <QtGlobal>

#include <random>
#include <utility>
#include <vector>

namespace demonstration {

/// The choices of the day that the program does not make itself: the same for the same seed, on every system.
class Hasard
{
public:
    explicit Hasard(quint32 graine);

    /// Whole number from \p bas to \p haut, both included.
    int entre(int bas, int haut);
    /// Whether something happens that does so \p pourcent times in a hundred.
    bool chance(int pourcent) { return entre(1, 100) <= pourcent; }

    template<typename T>
    const T &parmi(const std::vector<T> &choix)
    {
        return choix[size_t(entre(0, int(choix.size()) - 1))];
    }

    template<typename T>
    void melange(std::vector<T> &suite)
    {
        for (int i = int(suite.size()) - 1; i > 0; --i)
            std::swap(suite[size_t(i)], suite[size_t(entre(0, i))]);
    }

private:
    std::mt19937 m_generateur;
};

} // namespace demonstration
