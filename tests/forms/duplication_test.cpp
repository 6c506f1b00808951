#include "commun/panne_ecriture.h"
#include "commun/programme_essai.h"

namespace {

const QString C = u"Econcours"_qs;

/// Competition 1 is at its second round, competition 2 stands beside it.
class Copie : public ProgrammeEssai
{
protected:
    void prepare()
    {
        creeConcours(
            {.type = u"2 - Triplettes"_qs, .repeche = true, .lieu = u"L'Étoile d'Aÿ"_qs, .equipes = equipesDeClubs(3)});
        abime(u"update equipes set nom = 'O''Brien ' || doublon, engage = equipe - 1;"
              "update evolution set principal = 4"_qs);
        poseRencontres(base(), 1, {{.tour = 2, .equipe1 = 1, .equipe2 = 2}});
        creeConcours();
        poseRencontres(base(), 2, {{.tour = 1, .equipe1 = 1, .equipe2 = 2}});
        execute(u"insert into equipes (concours, equipe, nom) values (2, 1, 'AUTRE')"_qs);
        ouvreFamille(u"f_concours"_qs, C);
    }
    void choisit(const QString &numero) { liste(C, u"référence"_qs)->setEditText(numero); }
};

TEST_F(Copie, KeepsWholeTeamsAndNoDraw)
{
    prepare();
    choisit(u"000001"_qs);
    boites.attend(u"Concours dupliqué sous le numéro 3"_qs);
    clic(C, u"Dupliquer"_qs);
    EXPECT_EQ(lignes(u"select lieu, organisateur, type, tourpri, repeche from concours where concours = 3"_qs),
              QStringList{u"L'Étoile d'Aÿ|(duplicata du 000001)|2 - Triplettes|0|0"_qs});
    EXPECT_EQ(lignes(u"select equipe, doublon, nom from equipes where concours = 3"_qs),
              lignes(u"select equipe, doublon, nom from equipes where concours = 1"_qs));
    EXPECT_EQ(lignes(u"select equipe, principal, complement from evolution where concours = 3 order by equipe"_qs),
              QStringList({u"1|0|0"_qs, u"2|1|0"_qs, u"3|0|-1"_qs}));
    EXPECT_EQ(nombre(u"select count(*) from scores where concours = 3"_qs), 0);
    EXPECT_EQ(texte(C, u"référence"_qs), u"000004"_qs);

    for (const QString &faux : {u"000099"_qs, u"1 or 1=1"_qs, u""_qs}) {
        choisit(faux);
        boites.attend(u"Vous devez selectionner un concours existant "_qs);
        clic(C, u"Dupliquer"_qs);
        boites.verifie();
    }
    EXPECT_EQ(nombre(u"select count(*) from concours"_qs), 3);
}

TEST_F(Copie, RemovalTakesEverythingOfOneCompetitionOnConsent)
{
    prepare();
    choisit(u"000001"_qs);
    boites.attend(partage().mes(96), ReponseBoite::Non);
    clic(C, u"Supprimer"_qs);
    EXPECT_EQ(nombre(u"select count(*) from equipes where concours = 1"_qs), 9);
    const QStringList avant = Contenu(base().native());
    for (int apres = 0; apres < 9 + 3 + 1 + 1; ++apres) {
        const PanneEcriture panne(base().native(), apres);
        boites.attend(partage().mes(96), ReponseBoite::Oui);
        boites.attend(u"Erreur"_qs);
        clic(C, u"Supprimer"_qs);
        ASSERT_EQ(Contenu(base().native()), avant) << "row " << apres;
    }
    verifieSansCopie([this] { clic(C, u"Supprimer"_qs); }, partage().mes(96));
    for (const QString &table : {u"concours"_qs, u"equipes"_qs, u"evolution"_qs, u"scores"_qs}) {
        EXPECT_EQ(nombre(u"select count(*) from %1 where concours = 1"_qs.arg(table)), 0) << table.toStdString();
    }
    EXPECT_EQ(lignes(u"select concours, nom from equipes"_qs), QStringList{u"2|AUTRE"_qs});
    EXPECT_EQ(nombre(u"select count(*) from scores where concours = 2"_qs), 1);
    EXPECT_EQ(focus(), u"Text2"_qs);

    choisit(u"000001"_qs);
    clic(C, u"Supprimer"_qs);
    EXPECT_EQ(nombre(u"select count(*) from concours"_qs), 1) << "a number without a competition removes nothing";
    choisit(u"000002"_qs);
    boites.attend(partage().mes(96), ReponseBoite::Oui);
    clic(C, u"Supprimer"_qs);
    EXPECT_FALSE(visible(C, u"référence"_qs)) << "without a competition there is nothing to choose";
}

} // namespace
