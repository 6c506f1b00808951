#include "maintenance/purge.h"

#include "app/formes.h"
#include "commun/base_essai.h"
#include "commun/panne_ecriture.h"
#include "commun/panne_fichiers.h"
#include "commun/programme_pilote.h"

#include <QCloseEvent>
#include <QtTest/qtestspontaneevent.h>

#include <csignal>
#include <sys/resource.h>

using store::Erreur;

namespace {

const QString attention = u"Attention cette opération est irréversible\r\nAvez vous fait une sauvegarde?\r\n"
                          "Vous allez supprimer des informations"_qs;
const QString continueAvec = u"le programme continue avec la base"_qs;

class Purge : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(prog.demarre());
        concours = poseConcours(prog.base(), {.equipes = equipesDeClubs(4)});
        poseRencontres(prog.base(), concours,
                       {{.tour = 1, .rencontre = 1, .equipe1 = 1, .equipe2 = 2},
                        {.tour = 1, .rencontre = 2, .equipe1 = 3, .equipe2 = 4}});
        for (const QString &sql :
             {u"insert into equipes (concours, equipe, nom) values (0, 1, 'FABRE')"_qs,
              u"insert into equipes (concours, equipe, nom) values (0, 2, 'ROUX')"_qs,
              u"insert into joueurs (nom) values ('J')"_qs, u"insert into societes (societe) values ('Club')"_qs,
              u"insert into tnequipes (concours) values (1)"_qs, u"insert into tirages_pro (concours) values (1)"_qs})
            prog.base().native().execute(sql);
    }
    void clique() { prog.menu(u"mnu_base"_qs)->trigger(); }
    void purge(const FichiersBase &fichiers, const QString &boite)
    {
        prog.boites.attend(attention, ReponseBoite::Oui);
        prog.boites.attend(boite);
        Execute(prog.boites, [&] {
            PurgeBase({prog.partage(), prog.formulaires(), prog.boites}, fichiers, FormesDechargees(Entree::Purge));
        });
        prog.boites.verifie();
        EXPECT_FALSE(prog.formulaires().estChargee(u"Alerte"_qs));
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }
    static QString compte(store::Database &base)
    {
        QStringList nombres;
        for (const QString &table : {u"concours"_qs, u"equipes"_qs, u"evolution"_qs, u"scores"_qs, u"tnequipes"_qs,
                                     u"tirages_pro"_qs, u"societes"_qs, u"joueurs"_qs})
            nombres += base.native().valeurUnique(u"select count(*) from "_qs + table).texte();
        return nombres.join(u' ');
    }
    QString temporaire() const { return prog.dossier() + u"/myTmpDB.mdb"_qs; }
    /// The program works on a base that holds what a purge leaves, and takes the next result.
    void exigeBaseVivante()
    {
        EXPECT_EQ(compte(prog.base()), purgee);
        prog.base().Execute(u"insert into joueurs (nom) values ('APRES')");
        prog.base().Execute(u"delete * from joueurs where nom='APRES'");
        EXPECT_EQ(prog.valeur(u"pragma journal_mode"_qs).texte(), u"wal"_qs);
    }

    const QString purgee = u"0 2 0 0 0 0 2 1"_qs;
    ProgrammePilote prog;
    qint32 concours = 0;
};

} // namespace

TEST_F(Purge, NoLeavesEverything)
{
    const QString avant = compte(prog.base());
    prog.boites.attend(attention, ReponseBoite::Non);
    prog.boites.attend(u"Opération annulée"_qs);
    clique();
    EXPECT_EQ(compte(prog.base()), avant);
    EXPECT_NE(avant, purgee);
}

TEST_F(Purge, WithoutACopyItAsksAndNoLeavesEverything)
{
    prog.ouvre(u"f_resultats"_qs);
    prog.partage().AvecCopies = true;
    QFile obstacle(prog.dossier() + u"/sauvegardes"_qs);
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    const QStringList avant = Contenu(prog.base().native());
    prog.boites.attend(attention, ReponseBoite::Oui);
    prog.boites.attend(u"Continuer sans elle ?"_qs, ReponseBoite::Non);
    prog.boites.attend(u"Opération annulée"_qs);
    clique();
    EXPECT_EQ(Contenu(prog.base().native()), avant);
    EXPECT_TRUE(prog.formulaires().estVisible(u"EResultats"_qs));
    prog.boites.attend(attention, ReponseBoite::Oui);
    prog.boites.attend(u"Continuer sans elle ?"_qs, ReponseBoite::Oui);
    prog.boites.attend(u"Opération réussie"_qs);
    clique();
    exigeBaseVivante();
}

TEST_F(Purge, ARefusedDeletionLeavesEverythingAndCanBeTriedAgain)
{
    const QStringList avant = Contenu(prog.base().native());
    const int lignes = prog.valeur(u"select (select count(*) from scores) + (select count(*) from evolution) + (select "
                                   u"count(*) from equipes where concours <> 0) + 3"_qs)
                           .entier();
    for (int apres = 0; apres < lignes; ++apres) {
        const PanneEcriture panne(prog.base().native(), apres);
        purge(FichiersBase(), u"Erreur"_qs);
        ASSERT_EQ(Contenu(prog.base().native()), avant) << "row " << apres;
    }
    purge(FichiersBase(), u"Opération réussie"_qs);
    exigeBaseVivante();
}

TEST_F(Purge, KeepsPlayersAndClubsAndGoesOnInTheNewFile)
{
    QFile(temporaire()).open(QIODevice::WriteOnly); // left over from an earlier failure
    prog.boites.attend(attention, ReponseBoite::Oui);
    prog.boites.attend(u"Opération réussie"_qs);
    clique();
    exigeBaseVivante();
    EXPECT_FALSE(QFile::exists(temporaire()));
    EXPECT_EQ(prog.partage().ConcoursCourant, 0); // as it was: nothing had been chosen
    EXPECT_EQ(poseConcours(prog.base(), {}), concours + 1);

    prog.termine(); // the same password still opens it
    store::Database relue =
        store::DBEngine().Workspaces(0).OpenDatabase(prog.fichier(), false, false, BaseEssai::connexion());
    EXPECT_EQ(relue.native().valeurUnique(u"select nom from equipes where equipe = 2"_qs).texte(), u"ROUX"_qs);
}

TEST_F(Purge, TheNoticeStandsPaintedAndNothingCanBeClosedMeanwhile)
{
    class Peintures : public QObject
    {
    public:
        bool eventFilter(QObject *objet, QEvent *evenement) override
        {
            if (evenement->type() == QEvent::Paint && objet->parent() != nullptr)
                vues += objet->parent()->objectName();
            return false;
        }
        QStringList vues;
    } peintures;
    qApp->installEventFilter(&peintures);
    PanneFichiers temoin(PanneFichiers::Aucune);
    temoin.pendant = [&] {
        EXPECT_TRUE(prog.formulaires().estVisible(u"Alerte"_qs));
        EXPECT_EQ(prog.controle<QPlainTextEdit>(u"Alerte"_qs, u"Text1"_qs)->toPlainText(),
                  u"  Opération en cours....Patientez"_qs);
        EXPECT_TRUE(peintures.vues.contains(u"Text1"_qs));
        QCloseEvent fermeture;
        QSpontaneKeyEvent::setSpontaneous(&fermeture);
        qApp->notify(prog.torvik(), &fermeture);
        EXPECT_FALSE(fermeture.isAccepted());
        EXPECT_TRUE(prog.formulaires().estChargee(u"Accueil"_qs));
        EXPECT_FALSE(prog.base().estOuverte());
    };
    purge(temoin, u"Opération réussie"_qs);
    exigeBaseVivante();
}

TEST_F(Purge, AFailedStepLeavesAWholeFileAndSaysWhatToDo)
{
    QFile(temporaire()).open(QIODevice::WriteOnly);
    for (const auto etape : {PanneFichiers::Reste, PanneFichiers::Compacte, PanneFichiers::Supprime}) {
        purge(PanneFichiers(etape), continueAvec);
        EXPECT_TRUE(prog.boites.textes().last().contains(u"Panne."_qs));
        exigeBaseVivante();
    }
    purge(PanneFichiers(PanneFichiers::Ouvre), u"fermez le programme et relancez-le"_qs);
    store::Database relue =
        store::DBEngine().Workspaces(0).OpenDatabase(prog.fichier(), false, false, BaseEssai::connexion());
    EXPECT_EQ(compte(relue), purgee);
}

TEST_F(Purge, ARefusedRenameLeavesTheBaseUnderItsTemporaryName)
{
    purge(PanneFichiers(PanneFichiers::Renomme), u"relancez-le : il reprendra ce fichier"_qs);
    EXPECT_FALSE(QFile::exists(prog.fichier()));
    prog.boites.attend(u"La base est fermée."_qs); // nothing crashes until the program is closed
    prog.ouvre(u"f_concours"_qs);
    prog.boites.repondATout();
    prog.ouvre(u"f_equipes"_qs);
    prog.termine();

    ProgrammePilote lendemain;
    QFile::remove(lendemain.fichier());
    QFile::copy(temporaire(), lendemain.dossier() + u"/myTmpDB.mdb"_qs);
    lendemain.boites.attend(u"Une remise à zéro avait été interrompue"_qs);
    ASSERT_TRUE(lendemain.demarre());
    EXPECT_EQ(compte(lendemain.base()), purgee);
    EXPECT_FALSE(QFile::exists(lendemain.dossier() + u"/myTmpDB.mdb"_qs));
}

TEST_F(Purge, AFullDiskKeepsTheOldFile)
{
    prog.base().native().execute(u"insert into clubs (societe) with recursive n(i) as (select 1 union all select i + 1 "
                                 u"from n where i < 3000) select 'Un club de boules ' || i from n"_qs);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit avant{};
    getrlimit(RLIMIT_FSIZE, &avant);
    PanneFichiers disque(PanneFichiers::Aucune);
    disque.pendant = [&] {
        const rlimit plein{48 * 1024, avant.rlim_max}; // enough to read the old file, not to write the new one
        setrlimit(RLIMIT_FSIZE, &plein);
    };
    purge(disque, continueAvec);
    setrlimit(RLIMIT_FSIZE, &avant);
    EXPECT_FALSE(QFile::exists(temporaire())) << "half a base must not lie about";
    EXPECT_TRUE(prog.boites.textes().last().startsWith(u"Erreur "_qs));
    exigeBaseVivante();
}

TEST_F(Purge, AFileThatHasGoneIsTold)
{
    PanneFichiers temoin(PanneFichiers::Aucune);
    temoin.pendant = [&] { QFile::remove(prog.fichier()); };
    purge(temoin, u"remettez-y votre sauvegarde"_qs);
}

TEST_F(Purge, SomebodyWhoStillReadsTheBaseKeepsItsJournal)
{
    store::Recordset lecture = prog.base().OpenRecordset(u"equipes", store::dbOpenTable);
    purge(FichiersBase(), continueAvec);
    exigeBaseVivante();
    EXPECT_NO_THROW(lecture.MoveFirst());
    lecture.Close();
    purge(FichiersBase(), u"Opération réussie"_qs);
    exigeBaseVivante();
}

/// A form left open would store teams in a competition that is no more.
TEST_F(Purge, TheFormsOfACompetitionGoWithIt)
{
    prog.ouvre(u"chrono"_qs);
    prog.ouvre(u"f_resultats"_qs);
    prog.clique(u"EResultats"_qs, u"manquants"_qs);
    prog.clique(u"EResultats"_qs, u"VALIDATION"_qs);
    ASSERT_EQ(prog.partage().ConcoursCourant, concours);
    purge(FichiersBase(), u"Opération réussie"_qs);
    exigeBaseVivante();
    prog.boites.repondATout();
    EXPECT_EQ(prog.partage().ConcoursCourant, concours);
    for (const QString &forme : prog.formulaires().noms())
        EXPECT_EQ(prog.formulaires().estChargee(forme), forme == u"FrmHorloge"_qs || forme == u"Accueil"_qs)
            << forme.toStdString();
    for (const QString &famille : {u"f_resultats"_qs, u"f_equipes"_qs, u"f_concours"_qs, u"f_accueil"_qs})
        prog.ouvre(famille);
    exigeBaseVivante();
}
