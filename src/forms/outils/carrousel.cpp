#include "outils/carrousel.h"

#include <algorithm>

void Carrousel::prend(std::vector<Feuillet> feuillets)
{
    const Feuillet montre = feuillet();
    m_feuillets = std::move(feuillets);
    const auto memeOuAvant = [&](const Feuillet &autre) {
        return autre.genre == montre.genre && autre.numero <= montre.numero;
    };
    const auto suivante = std::ranges::find_if(m_feuillets, [&](const Feuillet &f) { return f.genre >= montre.genre; });
    auto place = suivante == m_feuillets.end() ? m_feuillets.begin() : suivante;
    while (place + 1 != m_feuillets.end() && memeOuAvant(*(place + 1)))
        ++place;
    m_place = std::size_t(place - m_feuillets.begin());
    if (feuillet().genre != montre.genre)
        m_montre = 0;
}

bool Carrousel::avance(qint64 ecoule)
{
    if (m_pause)
        return false;
    m_montre += ecoule;
    if (m_montre < m_duree)
        return false;
    suivante();
    return true;
}

void Carrousel::suivante()
{
    m_place = (m_place + 1) % m_feuillets.size();
    m_montre = 0;
}

int Carrousel::pagesDuGenre() const
{
    return int(std::ranges::count(m_feuillets, feuillet().genre, &Feuillet::genre));
}
