#pragma once

#include "hasard.h"
#include "options.h"

#include <QString>

#include <vector>

namespace demonstration {

struct Joueur
{
    QString licence;
    QString nom;
    QString prenom;
    QString club;
};

/// How a team comes into the program.
enum class Arrivee {
    Licences, ///< Every licence is known: names and club come by themselves.
    Panachee, ///< Every licence is known, from two clubs.
    Main, ///< Unknown licences: names and club are typed.
};

struct EquipeDuJour
{
    int numero = 0;
    Arrivee arrivee = Arrivee::Licences;
    QString club; ///< As it has to stand in the base at the end.
    std::vector<Joueur> joueurs;
    QString nomMalSaisi; ///< What is typed first for the name of the first player; empty without a slip.
    int force = 0; ///< The stronger team wins more often.
};

/// Teams, players and clubs of a day, in the order of their arrival.
class Plateau
{
public:
    Plateau(const Options &options, Hasard &hasard);

    const std::vector<EquipeDuJour> &equipes() const { return m_equipes; }
    const EquipeDuJour &equipe(int numero) const { return m_equipes[size_t(numero) - 1]; }
    const std::vector<QString> &clubs() const { return m_clubs; }
    /// Whether the last team arrives after the draw of the first round; a small field waits for nobody.
    bool avecRetardataire() const { return m_equipes.size() > 2; }

    /// Writes the players whose licences are known into the base file \p base, as the file of known players.
    void preenregistre(const QString &base) const;

private:
    EquipeDuJour compose(int numero, Hasard &hasard);
    QString clubDe(Hasard &hasard) const;

    Options m_options;
    std::vector<QString> m_clubs;
    std::vector<EquipeDuJour> m_equipes;
    int m_licences = 0;
};

} // namespace demonstration
