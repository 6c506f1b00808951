#pragma once

#include "hasard.h"
#include "operateur.h"
#include "photographe.h"
#include "plateau.h"

#include <vector>

namespace demonstration {

/// The results table: draws each round and types its scores through `EResultats`.
class Resultats
{
public:
    Resultats(Programme &programme, Operateur &operateur, const Plateau &plateau, Hasard &hasard,
              Photographe &photographe);

    void ouvre();
    /// Draws the next round by the button; \p deuxFois clicks it twice, which must draw once.
    void tire(bool deuxFois);
    /// Types every result of the current round; gives their number.
    int saisitTour();
    /// Opens the views of pending and played matches beside the entry.
    void ouvreVues();

    bool termine() const;
    /// Whether the form offers the draw of another round.
    bool offreUnTour() const;
    int tour() const;

private:
    static constexpr QStringView imageAppel = u"resultats-rencontre-appelee";

    struct Paire
    {
        int equipe1;
        int equipe2;
    };
    struct Score
    {
        int score1;
        int score2;
        bool reel;
    };

    std::vector<Paire> attendues() const;
    void joue(const Paire &rencontre, int place, int nombre);
    Score tireScore(const Paire &rencontre);
    void appelle(const Paire &rencontre, QStringView image = imageAppel);
    void tapeScore(const Paire &rencontre, const Score &score, QStringView image = imageAppel);
    void saisitScore(const Score &score);
    void tapeMot(const Paire &rencontre);
    void doubleClique(const Paire &rencontre, bool premierGagne);
    void corrige(const Paire &rencontre);
    void corrigeParLesVues(const Paire &rencontre);
    void basculeLancee();
    void montreDetail();
    void montreLettres();
    void verifie(const Paire &rencontre, const Score &score);
    void photographie(QStringView nom);

    Programme &m_programme;
    Operateur &m_main;
    const Plateau &m_plateau;
    Hasard &m_hasard;
    Photographe &m_photographe;
};

} // namespace demonstration
