#pragma once

#include "commun/programme_pilote.h"

#include <optional>
#include <vector>

/// A match as it stands in the file.
struct MatchEssai
{
    int equipe1 = 0;
    int equipe2 = 0;
    std::optional<int> score1 = {};
    std::optional<int> score2 = {};
    bool reel = false;

    bool operator==(const MatchEssai &) const = default;
};

/// The results screen of a started program, on a competition of its own.
class SalleResultats : public testing::Test
{
protected:
    /// Starts the program, registers a competition of triplets and opens the results screen on it.
    void ouvre(int equipes, bool repeche = false);
    qint32 inscrit(int equipes, bool repeche = false);
    /// Closes the screen and opens it anew.
    void rouvre();
    void tire() { prog.clique(u"EResultats"_qs, u"tirage_suivant"_qs); }
    /// Types the results of the current round, the first team winning every match.
    void joueTour();
    void joueEtTire()
    {
        joueTour();
        tire();
    }

    QWidget *controle(const QString &nom) { return prog.controle(u"EResultats"_qs, nom); }
    QString texte(const QString &nom) { return prog.texte(u"EResultats"_qs, nom); }
    QString textes(const QString &noms) { return prog.textes(u"EResultats"_qs, noms); }
    bool visible(const QString &nom) { return controle(nom)->isVisible(); }
    /// Texts of the four fields of a match, joined by blanks.
    QString champs();

    /// Matches of round \p tour without its bye, in the order of writing.
    std::vector<MatchEssai> matchs(int tour = 1);
    int tourpri();
    void execute(const QString &sql) { prog.base().native().executeScript(sql); }

    ProgrammePilote prog;
};
