#pragma once

#include "commun/programme_pilote.h"
#include "partage/langue.h"
#include "printing/resusoc.h"
#include "results/detail_resultats.h"
#include "results/etat_resultats.h"

/// Every form of the program, open as its users open it, in any of its languages: for what all forms owe.
class FormesOuvertes : public testing::Test
{
protected:
    static constexpr int langues = 6;

    void SetUp() override
    {
        ASSERT_TRUE(prog.demarre());
        const qint32 concours = poseConcours(prog.base(), {.equipes = equipesDeClubs(4)});
        poseRencontres(prog.base(), concours,
                       {{.tour = 1, .equipe1 = 1, .equipe2 = 2, .score1 = 13, .score2 = 7},
                        {.tour = 1, .equipe1 = 3, .equipe2 = 4}});
        prog.partage().ConcoursCourant = concours;
    }

    void langue(int numero)
    {
        prog.base().Execute(u"update traduc set actif = false");
        prog.base().Execute(u"update traduc set actif = true where numero = %1"_qs.arg(numero));
        ChargeLangue(prog.partage());
    }

    /// Names of all forms, always in the same order.
    QStringList noms()
    {
        QStringList noms = prog.formulaires().noms();
        noms.sort();
        return noms;
    }

    /// The form \p nom, freshly loaded and shown, or the main window.
    QWidget *ouvre(const QString &nom)
    {
        if (nom == u"Torvik")
            return prog.torvik();
        prog.formulaires().DechargeTout();
        const QStringList surResultats{u"manqres"_qs, u"valresu"_qs, u"Groupes"_qs, u"I_tirage"_qs,
                                       u"Détail_résultats"_qs};
        if (surResultats.contains(nom))
            prog.formulaires().Montre(NomForme(u"EResultats"));
        prog.formulaires().etat<EtatResultats>().AttendusAJour = false;
        if (nom == u"Groupes")
            prog.formulaires().Montre(NomForme(u"manqres"));
        Formulaire *forme = prog.formulaires().Charge(NomForme(nom));
        if (auto *feuilles = qobject_cast<Resusoc *>(forme))
            feuilles->propose(1, u"1 (Aix)"_qs, u"2 (Aix)"_qs);
        if (auto *detail = qobject_cast<DetailResultats *>(forme))
            detail->affiche(1);
        prog.formulaires().Montre(NomForme(nom));
        QApplication::processEvents();
        return prog.formulaires().forme(nom);
    }

    ProgrammePilote prog;
};
