#include "commun/concours_en_base.h"
#include "commun/contenu.h"
#include "commun/fichiers_essai.h"
#include "commun/panne_fichiers.h"
#include "commun/partage_essai.h"
#include "garde/inventaire.h"
#include "garde/restauration.h"
#include "garde/sauvegarde.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using store::Erreur;

namespace {

class Restauration : public testing::Test, protected PartageEssai
{
protected:
    Restauration()
    {
        partage.ConcoursCourant = ajoute();
        ancienne = contenu();
        copie = SauveBase(partage, RaisonCopie::Demande).fichier;
        ajoute();
        nouvelle = contenu();
    }

    qint32 ajoute()
    {
        const qint32 numero = poseConcours(partage.BaseDonnees, {.equipes = equipesDeClubs(3)});
        poseRencontres(partage.BaseDonnees, numero,
                       {{.tour = 1, .rencontre = 1, .equipe1 = 1, .equipe2 = 2, .score1 = 13, .score2 = 4},
                        {.tour = 1, .rencontre = 2, .equipe1 = 3, .equipe2 = 0, .score1 = 13, .score2 = 7},
                        {.tour = 2, .rencontre = 1, .equipe1 = 1, .equipe2 = 3}});
        return numero;
    }
    QStringList contenu() { return Contenu(partage.BaseDonnees.native()); }
    bool prepareSeul() const { return QFile::exists(base.fichier() + u".reprise"_qs); }

    QStringList ancienne;
    QStringList nouvelle;
    QString copie;
};

} // namespace

TEST_F(Restauration, TheInventoryCountsTeamsRoundsAndResultsOfEachCompetition)
{
    partage.BaseDonnees.Execute(u"insert into equipes (concours, equipe, nom) values (0, 1, 'FABRE')");
    partage.BaseDonnees.Execute(u"insert into concours (lieu) values ('Salle vide')");
    const Inventaire inventaire = FaitInventaire(partage.BaseDonnees.native());
    ASSERT_EQ(inventaire.concours.size(), 3U);
    const ConcoursTenu &premier = inventaire.concours.front();
    EXPECT_EQ(premier.equipes, 3);
    EXPECT_EQ(premier.tours, 2);
    EXPECT_EQ(premier.resultats, 1) << "neither the bye nor the match that waits";
    EXPECT_EQ(inventaire.concours.back(),
              (ConcoursTenu{.numero = 3, .jour = {}, .lieu = u"Salle vide"_qs, .type = {}}));
    EXPECT_EQ(inventaire.equipes(), 6);
    EXPECT_EQ(inventaire.resultats(), 2);
    EXPECT_EQ(inventaire.joueurs, 1);
    EXPECT_EQ(InventaireDe(copie).concours, std::vector{premier});
    EXPECT_THROW(std::ignore = InventaireDe(base.dossier() + u"/absente.mdb"_qs), Erreur);
}

TEST_F(Restauration, ACopyTakesThePlaceOfTheBaseAndTheOneMadeBeforeUndoesIt)
{
    const qint32 second = 2;
    for (const qint32 courant : {partage.ConcoursCourant, second}) {
        partage.ConcoursCourant = courant;
        PrepareRestauration(partage, copie);
        const QString avant = SauveBase(partage, RaisonCopie::Restauration).fichier;
        Restaure(partage, FichiersBase());
        EXPECT_EQ(contenu(), ancienne);
        EXPECT_EQ(partage.ConcoursCourant, courant == second ? 0 : courant) << "the second is not in the copy";
        partage.BaseDonnees.Execute(u"insert into societes (societe) values ('APRES')");
        PrepareRestauration(partage, avant);
        Restaure(partage, FichiersBase());
        EXPECT_EQ(contenu(), nouvelle);
        EXPECT_FALSE(prepareSeul());
    }
}

TEST_F(Restauration, AnyStepThatFailsLeavesABaseThatIsOpenOrASentenceThatTellsWhich)
{
    for (const auto etape : {PanneFichiers::Journaux, PanneFichiers::Renomme}) {
        PrepareRestauration(partage, copie);
        EXPECT_THROW(Restaure(partage, PanneFichiers(etape)), Erreur);
        EXPECT_EQ(contenu(), nouvelle);
        EXPECT_FALSE(prepareSeul());
    }
    PrepareRestauration(partage, copie);
    try {
        Restaure(partage, PanneFichiers(PanneFichiers::Ouvre));
        ADD_FAILURE();
    } catch (const Erreur &erreur) {
        EXPECT_TRUE(erreur.phrase().contains(u"La copie est en place"_qs)) << erreur.phrase().toStdString();
    }
    EXPECT_FALSE(partage.BaseDonnees.estOuverte());
    partage.BaseDonnees = base.ouvre();
    EXPECT_EQ(contenu(), ancienne);
}

TEST_F(Restauration, ACopyThatIsNotWholeIsRefusedBeforeAnythingChanges)
{
    abimeFichier(copie);
    EXPECT_THROW(PrepareRestauration(partage, copie), Erreur);
    EXPECT_THROW(PrepareRestauration(partage, base.dossier() + u"/absente.mdb"_qs), Erreur);
    EXPECT_FALSE(prepareSeul());
    EXPECT_EQ(contenu(), nouvelle);
}

TEST_F(Restauration, ACopyElsewhereIsWrittenReadBackAndProvedOrNotThereAtAll)
{
    const QString cle = base.dossier() + u"/cle.mdb"_qs;
    for (int fois = 0; fois < 2; ++fois) {
        EXPECT_EQ(CopieVers(partage, cle), std::nullopt);
        EXPECT_EQ(InventaireDe(cle), FaitInventaire(partage.BaseDonnees.native()));
        ajoute();
    }
    EXPECT_EQ(CopieVers(partage, base.fichier()), EchecCopieVers::BaseElleMeme);
    EXPECT_EQ(CopieVers(partage, base.dossier() + u"/absent/cle.mdb"_qs), EchecCopieVers::Ecriture);
    ASSERT_TRUE(QDir(base.dossier()).mkdir(u"dossier"_qs));
    ASSERT_TRUE(QFile::copy(cle, base.dossier() + u"/dossier/dedans"_qs));
    EXPECT_EQ(CopieVers(partage, base.dossier() + u"/dossier"_qs), EchecCopieVers::Ecriture);
    EXPECT_EQ(QDir(base.dossier()).entryList({u"*.encours"_qs}, QDir::Files), QStringList());
}
