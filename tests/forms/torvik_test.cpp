#include "app/base.h"
#include "app/torvik.h"
#include "commun/affiche.h"
#include "commun/concours_en_base.h"
#include "commun/programme_pilote.h"
#include "store/base_native.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QPlainTextEdit>

namespace {

QByteArray contenu(const QString &fichier)
{
    QFile lu(fichier);
    return lu.open(QIODevice::ReadOnly) ? lu.readAll() : QByteArray();
}

void remplace(const QString &fichier, const QByteArray &octets)
{
    QFile ecrit(fichier);
    ecrit.open(QIODevice::WriteOnly | QIODevice::Truncate);
    ecrit.write(octets);
}

bool visible(ProgrammePilote &prog, const QString &forme)
{
    return prog.formulaires().estVisible(forme);
}

TEST(FenetrePrincipale, DemarreSurLAccueil)
{
    ProgrammePilote prog;
    ASSERT_TRUE(prog.demarre());
    EXPECT_EQ(prog.torvik()->windowTitle(), u"VarloTour V0.0.1"_qs);
    EXPECT_TRUE(visible(prog, u"Accueil"_qs));
    EXPECT_EQ(prog.controle(u""_qs, u"f_concours"_qs)->toolTip(), prog.partage().mes(1));
    EXPECT_EQ(prog.controle(u""_qs, u"f_resultats"_qs)->toolTip(), prog.partage().mes(4));
    EXPECT_EQ(prog.torvik()->findChild<QAction *>(u"Mnu_resultats"_qs)->text(), prog.partage().mes(4));
    EXPECT_EQ(prog.torvik()->findChild<QMenu *>(u"Mnu_accueil"_qs)->title(), u"     ?"_qs);
    EXPECT_EQ(prog.partage().ConcoursCourant, 0);
}

TEST(FenetrePrincipale, UneFamilleALaFois)
{
    ProgrammePilote prog;
    ASSERT_TRUE(prog.demarre());
    poseConcours(prog.base(), {.equipes = {{1, u"A"_qs}, {2, u"B"_qs}}});
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
    prog.torvik()->findChild<QAction *>(u"mnu_joueurs"_qs)->trigger();
    EXPECT_FALSE(prog.formulaires().estChargee(u"EResultats"_qs));
    prog.torvik()->findChild<QAction *>(u"Mnu_concours"_qs)->trigger();
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
    const QList<QAction *> menus{prog.torvik()->findChild<QAction *>(u"Mnu_concours"_qs),
                                 prog.torvik()->findChild<QMenu *>(u"Equipes"_qs)->menuAction(),
                                 prog.torvik()->findChild<QAction *>(u"Mnu_resultats"_qs),
                                 prog.torvik()->findChild<QMenu *>(u"Mnu_accueil"_qs)->menuAction()};
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
    poseConcours(prog.base(), {.equipes = {{1, u"A"_qs}, {2, u"B"_qs}}});
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
            remplace(prog.fichier(), enClair);
        else if (cas == u"vide")
            remplace(prog.fichier(), {});
        else
            remplace(prog.fichier(), contenu(prog.fichier()).replace(9000, 400, QByteArray(400, 'x')));
        const QByteArray avant = contenu(prog.fichier());
        prog.boites.attend(u"VarloBase.mdb"_qs);
        EXPECT_FALSE(prog.demarre());
        prog.boites.verifie();
        EXPECT_EQ(prog.boites.drapeaux(), vbCritical);
        EXPECT_FALSE(visible(prog, u"Accueil"_qs));
        EXPECT_EQ(contenu(prog.fichier()), avant);
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
        return prog.base().native().valeurUnique(u"select count(*) from langues where lang = %1"_qs.arg(langue)).entier();
    };
    EXPECT_EQ(nombre(2), nombre(1));
    EXPECT_EQ(nombre(6), 0); // a language without texts stays one
}

TEST(FenetrePrincipale, ImageDeLangueIntrouvable)
{
    ProgrammePilote prog;
    QFile::remove(prog.dossier() + u"/1.ico"_qs);
    prog.boites.attend(u"1.ico"_qs);
    EXPECT_FALSE(prog.demarre());
}

} // namespace
