#include "engine/tirage_tour1.h"

#include "engine/clubs.h"
#include "partage/alea.h"

#include <array>
#include <utility>

namespace moteur {

namespace {

/// One first-round draw. Teams stand in rows 1 to n, row 0 stands for no team; a pair holds two of these rows.
class TirageTour1
{
public:
    TirageTour1(std::span<const EquipeInscrite> equipes, int exemptPrecedent, SourceAleatoire &alea)
        : m_alea(alea)
        , m_exemptPrecedent(exemptPrecedent)
        , m_nombre(static_cast<int>(equipes.size()))
        , m_lignes(equipes.size() + 1)
        , m_paires(equipes.size() / 2 + 1)
    {
        placeEquipes(equipes);
        formePaires();
        separeClubs(0);
        separeClubs(1);
    }

    std::vector<Partie> parties() const
    {
        std::vector<Partie> resultat;
        resultat.reserve(m_paires.size());
        const auto ecrit = [&resultat](int equipe1, int equipe2) -> Partie & {
            const int numero = static_cast<int>(resultat.size()) + 1;
            return resultat.emplace_back(
                Partie{.tour = 1, .rencontre = numero, .equipe1 = equipe1, .equipe2 = equipe2});
        };
        for (std::size_t i = 0; i + 1 < m_paires.size(); ++i)
            ecrit(ligne(m_paires[i][0]).equipe, ligne(m_paires[i][1]).equipe);
        // The last pair is that of the bye: only its first team is written, even where the exchanges between clubs
        // have put a second one there.
        if (m_paires.back()[0] != 0)
            ecrit(ligne(m_paires.back()[0]).equipe, 0);
        // A team that no pair has taken gets a bye too: a net below the shuffle, which leaves none.
        for (int r = 1; r <= m_nombre; ++r) {
            if (!ligne(r).prise)
                ecrit(ligne(r).equipe, 0).score1 = 0;
        }
        return resultat;
    }

private:
    struct Ligne
    {
        int equipe = 0;
        int club = 0;
        int clubMajuscule = 0;
        bool prise = false;
    };

    Ligne &ligne(int r) { return m_lignes[static_cast<std::size_t>(r)]; }
    const Ligne &ligne(int r) const { return m_lignes[static_cast<std::size_t>(r)]; }

    void placeEquipes(std::span<const EquipeInscrite> equipes)
    {
        NumerosClubs numeros;
        m_clubPanache = numeros.numero(clubPanache.toString().toUpper());
        m_lignes[0].club = m_lignes[0].clubMajuscule = numeros.numero(QString());
        m_alea.Randomize();
        for (const EquipeInscrite &equipe : equipes) {
            int r = 0;
            do
                r = AleaEntre(m_alea, 1, m_nombre);
            while (ligne(r).equipe != 0);
            ligne(r) = {equipe.equipe, numeros.numero(equipe.club), numeros.numero(equipe.club.toUpper()), false};
            if (m_exemptPrecedent == equipe.equipe)
                m_exemptPrecedent = r;
        }
    }

    void formePaires()
    {
        m_alea.Randomize();
        for (int k = 0; k < m_nombre; ++k) {
            const int r = ligneLibre();
            ligne(r).prise = true;
            m_paires[static_cast<std::size_t>(k / 2)][static_cast<std::size_t>(k % 2)] = r;
        }
    }

    int ligneLibre()
    {
        const int attendue = std::exchange(m_exemptPrecedent, pasDExempt);
        if (attendue >= 1 && attendue <= m_nombre)
            return attendue;
        int r = 0;
        do
            r = AleaEntre(m_alea, 1, m_nombre);
        while (ligne(r).prise);
        return r;
    }

    /// Exchanges sides \p s of pairs of one club. The pair of the bye takes part, its empty side too.
    void separeClubs(std::size_t s)
    {
        const std::size_t nombre = m_paires.size() - (m_nombre % 2 == 0 ? 1 : 0);
        for (std::size_t i = 0; i < nombre; ++i) {
            const Ligne &a = ligne(m_paires[i][s]);
            const Ligne &b = ligne(m_paires[i][1 ^ s]);
            if (a.clubMajuscule == b.clubMajuscule && a.clubMajuscule != m_clubPanache)
                echangeAvecPremiere(i, s, nombre);
        }
    }

    void echangeAvecPremiere(std::size_t i, std::size_t s, std::size_t nombre)
    {
        const int club = ligne(m_paires[i][s]).club;
        for (std::size_t j = 0; j < nombre; ++j) {
            if (j != i && ligne(m_paires[j][0]).club != club && ligne(m_paires[j][1]).club != club) {
                std::swap(m_paires[i][s], m_paires[j][s]);
                return;
            }
        }
    }

    SourceAleatoire &m_alea;
    int m_exemptPrecedent;
    int m_nombre;
    int m_clubPanache = 0;
    std::vector<Ligne> m_lignes;
    std::vector<std::array<int, 2>> m_paires;
};

} // namespace

std::vector<Partie> tireTour1(std::span<const EquipeInscrite> equipes, int exemptPrecedent, SourceAleatoire &alea)
{
    if (equipes.size() < 2)
        return {};
    return TirageTour1(equipes, exemptPrecedent, alea).parties();
}

} // namespace moteur
