#pragma once

#include "commun/concours_en_base.h"
#include "commun/partage_essai.h"
#include "engine/classement.h"
#include "engine/routines_tirage.h"

/// A base and the shared state on it: all that the routines around the draws need.
class Salle : public PartageEssai
{
public:
    using PartageEssai::PartageEssai;

    /// Registers a competition and makes it the current one.
    qint32 inscrit(const ConcoursInscrit &concours);
    /// Makes \p concours the current one.
    void choisit(qint32 concours);

    /// Matches of the current competition in the order of writing; of round \p tour alone when it is above 0.
    std::vector<moteur::Partie> scores(int tour = 0);
    /// Rows of `tbclass` as the index `rankkey` walks them.
    std::vector<moteur::LigneClassement> tbclass();
    int tourpri();
    /// A click for the next round: where it meets a draw without results, \p recommence draws it anew.
    struct Clic
    {
        BilanLancement bilan;
        int essais = 0;
    };
    Clic clique(bool recommence = false);
    /// EnregistreScore, in the current competition.
    bool saisit(int equipe1, int equipe2, const QString &score1, const QString &score2);
    qint64 nombre(const QString &sql) { return native().valeurUnique(sql).entier(); }
};
