#pragma once

#include <QtGlobal>

#include <random>

/// Source of the random numbers of the whole program. The program seeds it from the time of day; tests and the
/// demonstration pass one with a fixed seed.
class SourceAleatoire
{
public:
    virtual ~SourceAleatoire() = default;

    /// Next number, at least 0 and below 1.
    virtual double suivant() = 0;
    /// Seeds the source anew from the time of day; a source with a fixed seed goes on where it is.
    virtual void Randomize() = 0;
};

/// Source seeded from the time of day.
class AleaHorloge final : public SourceAleatoire
{
public:
    AleaHorloge();
    double suivant() override;
    void Randomize() override;

private:
    std::mt19937 m_generateur;
};

/// Source that always gives the same numbers for the same seed.
class AleaFixe final : public SourceAleatoire
{
public:
    explicit AleaFixe(quint32 graine);
    double suivant() override;
    void Randomize() override {}

private:
    std::mt19937 m_generateur;
};

/// Whole number from \p bas to \p haut, both included. A \p haut below 0 stands for 0 to 9; a \p bas above \p haut
/// counts as 0. From a \p bas of 0, the 0 itself comes half as often as the other numbers.
qint32 AleaEntre(SourceAleatoire &alea, qint32 bas, qint32 haut);
