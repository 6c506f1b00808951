#include "app/formes.h"
#include "app/torvik.h"
#include "commun/programme_pilote.h"
#include "garde/sauvegarde.h"
#include "partage/base.h"
#include "store/base_native.h"
#include "store/preuve.h"

#include <QMenu>

#include <map>

namespace {

bool visible(ProgrammePilote &prog, const QString &forme)
{
    return prog.formulaires().estVisible(forme);
}

QString nomsDecharges(Entree entree)
{
    QStringList noms;
    for (const NomForme nom : FormesDechargees(entree))
        noms += nom;
    return noms.join(u' ');
}

TEST(FenetrePrincipale, DemarreSurLAccueil)
{
    ProgrammePilote prog;
    ASSERT_TRUE(prog.demarre());
    EXPECT_EQ(prog.torvik()->windowTitle(), u"VarloTour V0.0.1"_qs);
    EXPECT_TRUE(visible(prog, u"Accueil"_qs));
    EXPECT_EQ(prog.controle(u""_qs, u"f_concours"_qs)->toolTip(), prog.partage().mes(1));
    EXPECT_EQ(prog.controle(u""_qs, u"f_resultats"_qs)->toolTip(), prog.partage().mes(4));
    EXPECT_EQ(prog.menu(u"Mnu_resultats"_qs)->text(), prog.partage().mes(4));
    EXPECT_EQ(prog.controle<QMenu>(u""_qs, u"Mnu_accueil"_qs)->title(), u"     ?"_qs);
    EXPECT_EQ(prog.partage().ConcoursCourant, 0);
}

// What goes, and in which order: a form that is unloaded writes, asks and takes others with it.
TEST(TableDesFormes, EachEntryUnloadsItsFormsInItsOrder)
{
    const std::pair<Entree, QString> attendus[] = {
        {Entree::Accueil, u"Econcours Eequipes EResultats Listesoc manqres palmares valresu Ejoueurs listeq Listco"_qs},
        {Entree::Concours, u"Eequipes EResultats Listesoc manqres palmares valresu Ejoueurs listeq"_qs},
        {Entree::Equipes, u"Econcours EResultats manqres palmares valresu Resusoc Ejoueurs listeq Listco"_qs},
        {Entree::Joueurs, u"Econcours EResultats Eequipes Listesoc manqres palmares valresu Resusoc listeq Listco"_qs},
        {Entree::Resultats, u"Econcours Eequipes Listesoc manqres palmares valresu Resusoc Ejoueurs listeq Listco"_qs},
        {Entree::Purge,
         u"Econcours Eequipes Listesoc listeq Listco I_tirage EResultats valresu manqres Groupes palmares "
         u"Resusoc Détail_résultats CopiesSecurite RapportTirage"_qs},
        {Entree::Fin, u"Econcours Eequipes EResultats Listesoc manqres palmares valresu Accueil Resusoc"_qs},
    };
    for (const auto &[entree, noms] : attendus)
        EXPECT_EQ(nomsDecharges(entree), noms);
}

TEST(TableDesFormes, EachFormBearsItsNameAndEachFamilyShowsOne)
{
    ProgrammePilote prog;
    ASSERT_TRUE(prog.demarre());
    QStringList noms;
    std::map<Entree, int> montrees;
    std::array<std::vector<int>, nombreEntrees> rangs;
    for (const LigneForme &ligne : TableFormes()) {
        noms += ligne.nom;
        const std::unique_ptr<Formulaire> forme(
            ligne.fabrique({prog.partage(), prog.formulaires(), prog.boites}, prog.torvik()));
        EXPECT_EQ(forme->Name(), ligne.nom.texte());
        for (const Infobulle &infobulle : forme->infobulles())
            EXPECT_TRUE(forme->isAncestorOf(infobulle.controle) && !infobulle.texte.isEmpty())
                << infobulle.texte.toStdString();
        EXPECT_TRUE(ligne.famille || ligne.ouverture == Ouverture::Rien) << ligne.nom.texte().toStdString();
        if (ligne.ouverture == Ouverture::Montre)
            ++montrees[*ligne.famille];
        for (std::size_t entree = 0; entree < nombreEntrees; ++entree) {
            if (const int rang = ligne.dechargee[entree]; rang > 0)
                rangs[entree].push_back(rang);
        }
    }
    const QStringList connus = prog.formulaires().noms();
    EXPECT_EQ(QSet(noms.begin(), noms.end()), QSet(connus.begin(), connus.end()));
    EXPECT_EQ(noms.removeDuplicates(), 0);
    for (const Entree famille :
         {Entree::Accueil, Entree::Concours, Entree::Equipes, Entree::Joueurs, Entree::Resultats})
        EXPECT_EQ(montrees[famille], 1) << int(famille);
    for (std::vector<int> &places : rangs) {
        std::ranges::sort(places);
        for (std::size_t i = 0; i < places.size(); ++i)
            EXPECT_EQ(places[i], int(i) + 1);
    }
}

TEST(FenetrePrincipale, UneFamilleALaFois)
{
    ProgrammePilote prog;
    ASSERT_TRUE(prog.demarre());
    poseConcours(prog.base(), {.equipes = equipesDeClubs(2)});
    prog.ouvre(u"f_concours"_qs);
    EXPECT_TRUE(visible(prog, u"Econcours"_qs));
    EXPECT_FALSE(visible(prog, u"Accueil"_qs));
    EXPECT_TRUE(prog.formulaires().estChargee(u"Accueil"_qs)); // hidden, not unloaded
    prog.ouvre(u"f_resultats"_qs);
    EXPECT_TRUE(visible(prog, u"EResultats"_qs));
    EXPECT_FALSE(prog.formulaires().estChargee(u"Econcours"_qs));
    prog.ouvre(u"f_equipes"_qs);
    EXPECT_FALSE(prog.formulaires().estChargee(u"EResultats"_qs));
    prog.ouvre(u"f_resultats"_qs);
    prog.menu(u"mnu_joueurs"_qs)->trigger();
    EXPECT_FALSE(prog.formulaires().estChargee(u"EResultats"_qs));
    prog.menu(u"Mnu_concours"_qs)->trigger();
    EXPECT_TRUE(visible(prog, u"Econcours"_qs));
    prog.ouvre(u"f_accueil"_qs);
    EXPECT_TRUE(visible(prog, u"Accueil"_qs));
    EXPECT_FALSE(prog.formulaires().estChargee(u"Econcours"_qs));
    prog.ouvre(u"chrono"_qs); // toggles, whether or not there is a clock
    prog.ouvre(u"chrono"_qs);
    EXPECT_FALSE(prog.formulaires().estChargee(u"FrmHorloge"_qs));
    EXPECT_TRUE(visible(prog, u"Accueil"_qs));
}

TEST(FenetrePrincipale, ClicsSurLeFond)
{
    ProgrammePilote prog;
    ASSERT_TRUE(prog.demarre());
    QWidget *fond = prog.controle(u""_qs, u"Terrain"_qs);
    const QList<QAction *> menus{prog.menu(u"Mnu_concours"_qs),
                                 prog.controle<QMenu>(u""_qs, u"Equipes"_qs)->menuAction(),
                                 prog.menu(u"Mnu_resultats"_qs),
                                 prog.controle<QMenu>(u""_qs, u"Mnu_accueil"_qs)->menuAction()};
    for (const bool attendu : {false, true}) {
        QTest::mouseClick(fond, Qt::RightButton);
        for (const QAction *menu : menus)
            EXPECT_EQ(menu->isVisible(), attendu);
    }
    EXPECT_TRUE(prog.formulaires().estChargee(u"Accueil"_qs));
    QTest::mouseClick(fond, Qt::LeftButton);
    EXPECT_FALSE(prog.formulaires().estChargee(u"Accueil"_qs));
}

TEST(FenetrePrincipale, FermerAvecDesEcransOuverts)
{
    ProgrammePilote prog;
    ASSERT_TRUE(prog.demarre());
    poseConcours(prog.base(), {.equipes = equipesDeClubs(2)});
    prog.ouvre(u"f_resultats"_qs);
    prog.torvik()->close(); // no box may come up: unloading does not touch the base any more
    EXPECT_FALSE(prog.base().estOuverte());
    for (const QString &forme : {u"EResultats"_qs, u"Accueil"_qs})
        EXPECT_FALSE(prog.formulaires().estChargee(forme));
    prog.termine();
}

TEST(FenetrePrincipale, BaseInutilisableFinitParUneBoite)
{
    const QByteArray enClair = QByteArray("SQLite format 3").leftJustified(4096, '\0');
    for (const QString &cas : {u"absente"_qs, u"étrangère"_qs, u"abîmée"_qs, u"vide"_qs}) {
        SCOPED_TRACE(cas.toStdString());
        ProgrammePilote prog;
        if (cas == u"absente")
            QFile::remove(prog.fichier());
        else if (cas == u"étrangère")
            ecritFichier(prog.fichier(), enClair);
        else if (cas == u"vide")
            ecritFichier(prog.fichier(), {});
        else
            abimeFichier(prog.fichier());
        const QByteArray avant = octetsDe(prog.fichier());
        prog.boites.attend(u"VarloBase.mdb"_qs);
        EXPECT_FALSE(prog.demarre());
        prog.boites.verifie();
        EXPECT_EQ(prog.boites.drapeaux(), vbCritical);
        EXPECT_FALSE(visible(prog, u"Accueil"_qs));
        EXPECT_EQ(octetsDe(prog.fichier()), avant);
        EXPECT_EQ(QFile::exists(prog.fichier()), cas != u"absente");
    }
}

TEST(FenetrePrincipale, UneBaseEnServiceRecoitLesMessagesQuiLuiManquent)
{
    ProgrammePilote prog;
    {
        store::BaseNative base(prog.fichier(), motDePasseBase, store::BaseNative::Mode::LectureEcriture);
        base.executeScript(u"delete from langues where num = 43 or lang = 6;"
                           u"update langues set mes = 'Mon club' where lang = 1 and num = 18"_qs);
    }
    ASSERT_TRUE(prog.demarre());
    EXPECT_EQ(prog.partage().mes(43), u"Forfait"_qs);
    EXPECT_EQ(prog.partage().mes(18), u"Mon club"_qs);
    const auto nombre = [&](int langue) {
        return prog.base()
            .native()
            .valeurUnique(u"select count(*) from langues where lang = %1"_qs.arg(langue))
            .entier();
    };
    EXPECT_EQ(nombre(2), nombre(1));
    EXPECT_EQ(nombre(6), nombre(1));
}

TEST(FenetrePrincipale, UneBaseVideeDeSesLanguesLesRetrouve)
{
    ProgrammePilote prog;
    for (const QString &perte : {u"delete from langues"_qs,
                                 u"delete from langues; delete from traduc; delete from typconcours; "
                                 u"delete from [catégories]; drop index \"traduc.alpha\"; drop index \"traduc.num\"; "
                                 u"drop index \"equipes.PrimaryKey\"; drop trigger \"equipes.doublon\""_qs}) {
        {
            store::BaseNative base(prog.fichier(), motDePasseBase, store::BaseNative::Mode::LectureEcriture);
            base.executeScript(perte);
        }
        ASSERT_TRUE(prog.demarre());
        EXPECT_EQ(prog.menu(u"Mnu_concours"_qs)->text(), u"Concours"_qs);
        EXPECT_EQ(prog.valeur(u"select group_concat(numero || actif, ' ') from traduc"_qs).texte(),
                  u"1-1 20 30 40 50 60"_qs);
        EXPECT_GT(prog.valeur(u"select count(distinct lang) from typconcours"_qs).entier(), 5);
        EXPECT_GT(prog.valeur(u"select count(distinct lang) from catégories"_qs).entier(), 0);
        store::Recordset langues = prog.base().OpenRecordset(u"traduc", store::dbOpenTable);
        langues.Index(u"alpha");
        langues.Close();
        prog.base().Execute(u"insert into equipes (concours, equipe) values (9, 1)");
        EXPECT_EQ(prog.valeur(u"select doublon from equipes where concours = 9"_qs).entier(), 0);
        prog.base().Execute(u"delete * from equipes where concours = 9");
        prog.termine();
    }
}

/// A base that an earlier version has left opens for ever, with all that it holds.
TEST(FenetrePrincipale, UneBaseDeChaqueVersionSOuvre)
{
    const QDir anciennes(QStringLiteral(VARLOTOUR_ANCIENNES));
    const QStringList versions = anciennes.entryList({u"base_v*.mdb"_qs});
    EXPECT_EQ(versions.size(), store::versionBase);
    for (const QString &version : versions) {
        SCOPED_TRACE(version.toStdString());
        ProgrammePilote prog;
        ecritFichier(prog.fichier(), octetsDe(anciennes.filePath(version)));
        ASSERT_TRUE(prog.demarre());
        EXPECT_EQ(prog.valeur(u"pragma user_version"_qs).entier(), store::versionBase);
        EXPECT_EQ(prog.valeur(u"select count(*) from scores where score_1 is not null"_qs).entier(), 4);
        prog.ouvre(u"f_resultats"_qs);
        EXPECT_EQ(prog.partage().TourCourant, 2);
        prog.ouvre(u"f_equipes"_qs);
    }
}

TEST(FenetrePrincipale, UneBaseRefuseeCedeSaPlaceALaDerniereCopieOuReste)
{
    for (const bool absente : {false, true}) {
        ProgrammePilote prog;
        prog.avecCopies();
        ASSERT_TRUE(prog.demarre()); // makes a copy
        prog.termine();
        if (absente)
            QFile::remove(prog.fichier());
        else
            abimeFichier(prog.fichier());
        const QByteArray avant = octetsDe(prog.fichier());
        prog.boites.attendChoix(u"Voici les copies de sécurité complètes"_qs, {});
        EXPECT_FALSE(prog.demarre());
        prog.boites.verifie();
        ASSERT_EQ(prog.boites.lignes().size(), 1U);
        EXPECT_TRUE(prog.boites.textes().last().contains(absente ? u"VarloBase.mdb est introuvable"_qs
                                                                 : u"VarloBase.mdb est endommagé"_qs));
        EXPECT_EQ(octetsDe(prog.fichier()), avant);
        prog.boites.attendChoix(u"laquelle remettre à la place ?"_qs, 0);
        prog.boites.attend(u"est en place"_qs);
        ASSERT_TRUE(prog.demarre());
        EXPECT_FALSE(prog.partage().mes(1).isEmpty());
        const QStringList gardees = QDir(prog.dossier()).entryList({u"VarloBase-refusee-*.mdb"_qs});
        ASSERT_EQ(gardees.size(), absente ? 0 : 1);
        if (!absente) {
            EXPECT_EQ(octetsDe(prog.dossier() + u'/' + gardees.front()), avant);
        }
        prog.termine();
    }
}

TEST(FenetrePrincipale, UnJournalResteACoteDUneAutreBaseEstGarde)
{
    ProgrammePilote prog;
    const QByteArray originale = octetsDe(prog.fichier());
    ASSERT_TRUE(prog.demarre());
    for (const QString &club : {u"A"_qs, u"B"_qs, u"ECRITE"_qs}) {
        prog.base().native().consolide();
        prog.base().Execute(u"insert into societes (societe) values ('%1')"_qs.arg(club));
    }
    const QByteArray journal = octetsDe(prog.fichier() + u"-wal"_qs);
    ASSERT_FALSE(journal.isEmpty());
    prog.termine();
    ecritFichier(prog.fichier(), originale);
    ecritFichier(prog.fichier() + u"-wal"_qs, journal);
    prog.boites.attend(
        u"Ce journal n'y est pas repris : il est gardé dans VarloBase-journal-20260714-093000.mdb-wal"_qs);
    ASSERT_TRUE(prog.demarre());
    EXPECT_EQ(octetsDe(prog.dossier() + u"/VarloBase-journal-20260714-093000.mdb-wal"_qs), journal);
    EXPECT_EQ(prog.valeur(u"select count(*) from societes where societe = 'ECRITE'"_qs).entier(), 0);
}

/// What an operator or a tool can do to the file of a program at work.
TEST(FenetrePrincipale, UneBaseQuiDisparaitPendantLeTravailSeDitEtSeCopie)
{
    const auto reecrit = [](const QString &fichier, qint64 taille) {
        QFile base(fichier);
        ASSERT_TRUE(base.open(QIODevice::ReadWrite));
        ASSERT_TRUE(base.resize(taille) && base.write(QByteArray(2000, 'z')) == 2000);
    };
    struct Cas
    {
        QString dit;
        std::function<void(const QString &)> geste;
    };
    const Cas cas[] = {
        {u"n'est plus à sa place"_qs, [](const QString &base) { QFile::remove(base); }},
        {u"a été remplacé"_qs,
         [](const QString &base) {
             QFile::remove(base);
             ecritFichier(base, "autre");
         }},
        {u"a été réécrit ou coupé"_qs, [&](const QString &base) { reecrit(base, QFileInfo(base).size()); }},
        {u"a été réécrit ou coupé"_qs, [&](const QString &base) { reecrit(base, 0); }},
    };
    for (const Cas &c : cas) {
        SCOPED_TRACE(c.dit.toStdString());
        ProgrammePilote prog;
        prog.avecCopies();
        ASSERT_TRUE(prog.demarre());
        poseConcours(prog.base(), {.equipes = equipesDeClubs(2)});
        prog.base().native().consolide();
        c.geste(prog.fichier());
        const QByteArray apres = octetsDe(prog.fichier());
        prog.boites.attend(c.dit);
        prog.ouvre(u"f_resultats"_qs);
        prog.boites.verifie();
        EXPECT_TRUE(prog.boites.textes().last().contains(u"Tout est dans la copie"_qs));
        prog.base().Execute(u"insert into societes (societe) values ('APRES')");
        prog.ouvre(u"f_equipes"_qs); // told once
        prog.ouvre(u"f_accueil"_qs);
        prog.termine();
        EXPECT_EQ(octetsDe(prog.fichier()), apres) << "the other file is somebody else's";
        store::BaseNative copie(ListeCopies(prog.dossier()).back().fichier, motDePasseBase,
                                store::BaseNative::Mode::LectureSeule);
        EXPECT_EQ(copie.valeurUnique(u"select count(*) from equipes"_qs).entier(), 4);
        EXPECT_EQ(copie.valeurUnique(u"select count(*) from societes where societe = 'APRES'"_qs).entier(), 1);
    }
}

TEST(FenetrePrincipale, LeFichierSuitLaSaisieDesQueLOperateurSArrete)
{
    ProgrammePilote prog;
    ASSERT_TRUE(prog.demarre());
    prog.base().Execute(u"insert into societes (societe) values ('ECRITE')");
    ASSERT_TRUE(prog.base().native().journalEnAttente());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !prog.base().native().journalEnAttente(); }, 5000));
    prog.base().Execute(u"insert into societes (societe) values ('AUTRE')");
    qobject_cast<Torvik *>(prog.torvik())->seanceFinit();
    EXPECT_FALSE(prog.base().native().journalEnAttente());
}

TEST(FenetrePrincipale, ImageDeLangueIntrouvable)
{
    ProgrammePilote prog;
    QFile::remove(prog.dossier() + u"/1.ico"_qs);
    prog.boites.attend(u"1.ico"_qs);
    EXPECT_FALSE(prog.demarre());
}

} // namespace
