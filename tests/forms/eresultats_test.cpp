#include "salle_resultats.h"

namespace {

const QString vides = u"   "_qs; ///< Four empty fields.

/// Entry of results by the keyboard.
class SaisieResultats : public SalleResultats
{
protected:
    void SetUp() override
    {
        ouvre(8);
        tire();
        ASSERT_EQ(matchs().size(), 4u);
        ASSERT_EQ(prog.focus(), u"Equipe1"_qs);
    }

    /// The match \p rang holds these scores, the fields are empty and wait for the next team.
    void attendEnregistre(std::size_t rang, std::optional<int> score1, std::optional<int> score2, bool reel = true)
    {
        const MatchEssai match = matchs().at(rang);
        EXPECT_EQ(match.score1, score1);
        EXPECT_EQ(match.score2, score2);
        EXPECT_EQ(match.reel, reel);
        attendPret();
    }
    void attendPret()
    {
        EXPECT_EQ(champs(), vides);
        EXPECT_EQ(prog.focus(), u"Equipe1"_qs);
    }
    void appelle(std::size_t rang) { prog.tape(u"%1\n"_qs.arg(matchs().at(rang).equipe1)); }
    void doubleClic(const QString &nom) { prog.doubleClique(u"EResultats"_qs, nom); }
};

TEST_F(SaisieResultats, UnNumeroEtLeScoreDuPerdantSuffisent)
{
    const std::vector<MatchEssai> tires = matchs();
    prog.tape(u"%1\n"_qs.arg(tires[0].equipe1));
    EXPECT_EQ(champs(), u"%1 %2  "_qs.arg(tires[0].equipe1).arg(tires[0].equipe2));
    EXPECT_EQ(prog.focus(), u"Score1"_qs);
    prog.tape(u"7\n"_qs);
    attendEnregistre(0, 7, 13);
    EXPECT_EQ(texte(u"tour_P1"_qs), u" manque 3 Résultats "_qs);

    // The second team's number brings the match up in its own order; the winner's score waits for the other one.
    prog.tape(u"%1\n"_qs.arg(tires[1].equipe2));
    EXPECT_EQ(champs(), u"%1 %2  "_qs.arg(tires[1].equipe1).arg(tires[1].equipe2));
    prog.tape(u"13\n"_qs);
    EXPECT_EQ(prog.focus(), u"Score2"_qs);
    EXPECT_FALSE(matchs()[1].score1.has_value());
    prog.tape(u"0\n"_qs);
    attendEnregistre(1, 13, 0);

    // The right arrow counts as Enter.
    prog.tape(QString::number(tires[2].equipe1));
    prog.touche(Qt::Key_Right);
    EXPECT_EQ(prog.focus(), u"Score1"_qs);
    prog.tape(u"12"_qs);
    prog.touche(Qt::Key_Right);
    attendEnregistre(2, 12, 13);
    EXPECT_EQ(texte(u"tour_P1"_qs), u" manque 1 Résultat "_qs);
    EXPECT_FALSE(visible(u"tirage_suivant"_qs));

    prog.tape(u"%1\n14\n3\n"_qs.arg(tires[3].equipe1));
    attendEnregistre(3, 13, 3); // whatever is above 13 wins as 13 does
    EXPECT_TRUE(visible(u"tirage_suivant"_qs));
    EXPECT_EQ(texte(u"tirage_suivant"_qs), u"Tirage tour N°2"_qs);
}

TEST_F(SaisieResultats, TreizePartoutNEnregistreJamais)
{
    appelle(0);
    for (int fois = 0; fois < 3; ++fois) {
        prog.tape(u"13\n"_qs);
        EXPECT_EQ(prog.focus(), u"Score2"_qs);
        EXPECT_EQ(texte(u"Score2"_qs), QString());
        prog.tape(u"13\n"_qs);
        EXPECT_EQ(prog.focus(), u"Score1"_qs);
        EXPECT_EQ(texte(u"Score1"_qs), QString());
    }
    EXPECT_FALSE(matchs()[0].score1.has_value());
}

TEST_F(SaisieResultats, CeQuiEstCompareEstCeQuiEstEcrit)
{
    appelle(0);
    prog.tape(u"12.9\n"_qs);
    EXPECT_EQ(prog.focus(), u"Score2"_qs) << "stored, it would be 13";
    prog.tape(u"12.4\n"_qs);
    attendEnregistre(0, 13, 12);
    appelle(1);
    prog.tape(u"13\n12.6\n"_qs);
    EXPECT_EQ(prog.focus(), u"Score1"_qs);
    EXPECT_FALSE(matchs()[1].score1.has_value());
}

TEST_F(SaisieResultats, MotsEtPartiesPerdues)
{
    appelle(0);
    prog.tape(u"forfait\n"_qs);
    attendEnregistre(0, -1, 13);
    appelle(1);
    prog.tape(u"13\nDISQUALIFIÉ\n"_qs);
    attendEnregistre(1, 13, -3);

    // What is neither a number nor a word is taken out, and the focus stays.
    appelle(2);
    prog.tape(u"abc\n"_qs);
    EXPECT_EQ(prog.focus(), u"Score1"_qs);
    EXPECT_EQ(texte(u"Score1"_qs), QString());
    prog.tape(u"13\nP\n"_qs);
    EXPECT_EQ(prog.focus(), u"Score2"_qs);
    EXPECT_EQ(texte(u"Score2"_qs), QString());
    EXPECT_FALSE(matchs()[2].score1.has_value());
    prog.tape(u"-2\n"_qs);
    attendEnregistre(2, 13, -2);

    // A P in the first field is stored as it stands.
    appelle(3);
    prog.tape(u"P\n"_qs);
    attendPret();
    const QString quatrieme = u"equipe_1 = %1"_qs.arg(matchs()[3].equipe1);
    EXPECT_EQ(prog.valeur(u"select score_1 from scores where "_qs + quatrieme).texte(), u"P"_qs);
    EXPECT_FALSE(matchs()[3].score2.has_value());
}

TEST_F(SaisieResultats, DoubleClicGagneTreizeASept)
{
    appelle(0);
    QWidget *equipe1 = prog.controle(u"EResultats"_qs, u"Equipe1"_qs);
    // The gesture of another button, past QTest, which would hold that button down for the tests that follow.
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
        QMouseEvent droit(type, QPointF(5, 5), equipe1->mapToGlobal(QPointF(5, 5)), Qt::RightButton, Qt::RightButton,
                          Qt::NoModifier);
        QApplication::sendEvent(equipe1, &droit);
    }
    EXPECT_EQ(prog.valeur(u"select count(*) from scores where score_1 is not null"_qs).entier(), 0);
    doubleClic(u"Equipe1"_qs);
    attendEnregistre(0, 13, 7, false);
    appelle(1);
    doubleClic(u"Equipe2"_qs);
    attendEnregistre(1, 7, 13, false);

    // Such a result is not shown back, and the next typed one is told apart from it.
    appelle(0);
    EXPECT_EQ(champs(), u"%1 %2  "_qs.arg(matchs()[0].equipe1).arg(matchs()[0].equipe2));
    prog.tape(u"2\n"_qs);
    attendEnregistre(0, 2, 13, true);

    // Without a match the gesture stores nothing and leaves a typed result real.
    doubleClic(u"Equipe1"_qs);
    EXPECT_EQ(prog.valeur(u"select count(*) from scores where score_1 is not null"_qs).entier(), 2);
    equipe1->setFocus();
    appelle(2);
    prog.tape(u"13\n5\n"_qs);
    attendEnregistre(2, 13, 5, true);
}

TEST_F(SaisieResultats, UnTourPasseNeSEnregistrePlus)
{
    joueEtTire();
    const std::vector<MatchEssai> tour1 = matchs(1);
    const MatchEssai &ancien = tour1[0];
    execute(
        u"delete from scores where tour = 2 and (equipe_1 in (%1, %2) or equipe_2 in (%1, %2))"_qs.arg(ancien.equipe1)
            .arg(ancien.equipe2));
    prog.tape(u"%1\n"_qs.arg(ancien.equipe1));
    EXPECT_EQ(champs(), u"%1 %2 13 6"_qs.arg(ancien.equipe1).arg(ancien.equipe2));
    prog.tape(u"4\n"_qs);
    attendPret();
    EXPECT_EQ(matchs(1), tour1);
}

/// The first score field counts what is missing over all rounds, the second one in its own round.
TEST_F(SaisieResultats, ChaqueChampCompteASaFacon)
{
    joueEtTire();
    joueTour();
    execute(u"update scores set score_1 = null, score_2 = null where tour = 1 and rencontre = 1"_qs);
    const MatchEssai match = matchs(2).front();
    const auto saisit = [&](const QString &score) {
        qobject_cast<QLineEdit *>(controle(u"Equipe1"_qs))->setText(QString::number(match.equipe1));
        qobject_cast<QLineEdit *>(controle(u"Equipe2"_qs))->setText(QString::number(match.equipe2));
        controle(score)->setFocus();
        prog.tape(u"5\n"_qs);
    };
    saisit(u"Score1"_qs);
    EXPECT_EQ(matchs(2).front().score1, 5);
    EXPECT_FALSE(visible(u"tirage_suivant"_qs));
    EXPECT_EQ(texte(u"tour_P1"_qs), u" manque 1 Résultat "_qs);
    saisit(u"Score2"_qs);
    EXPECT_EQ(matchs(2).front().score2, 5);
    EXPECT_TRUE(visible(u"tirage_suivant"_qs));
}

TEST_F(SaisieResultats, EquipeSansRencontre)
{
    prog.boites.attend(u"n'a aucune rencontre"_qs, ReponseBoite::OK, u"Résultats - Concours"_qs);
    prog.tape(u"99\n"_qs);
    prog.boites.verifie();
    EXPECT_EQ(texte(u"Equipe1"_qs), u"99"_qs);
    EXPECT_EQ(prog.focus(), u"Equipe1"_qs);
    for (const QString &rien : {u"0\n"_qs, u"abc\n"_qs}) {
        qobject_cast<QLineEdit *>(controle(u"Equipe1"_qs))->clear();
        prog.tape(rien);
        attendPret();
    }
}

TEST_F(SaisieResultats, ScoreSansRencontreRefuse)
{
    const QString validez = u"Validez votre saisie avec la touche entrée"_qs;
    controle(u"Score1"_qs)->setFocus();
    prog.tape(u"5"_qs);
    controle(u"Equipe1"_qs)->setFocus();
    // Each of the two team fields is looked at: the box comes twice, then once.
    prog.boites.attend(validez, ReponseBoite::OK, u"Torvik"_qs);
    prog.boites.attend(validez, ReponseBoite::OK, u"Torvik"_qs);
    controle(u"Score1"_qs)->setFocus();
    prog.boites.verifie();
    EXPECT_EQ(prog.focus(), u"Equipe1"_qs);
    prog.tape(u"3"_qs);
    prog.boites.attend(validez, ReponseBoite::OK, u"Torvik"_qs);
    controle(u"Score1"_qs)->setFocus();
    prog.boites.verifie();
    EXPECT_EQ(prog.focus(), u"Equipe1"_qs);

    // Validated in between, the score field takes the focus without a word.
    prog.tape(u"\n"_qs);
    EXPECT_EQ(prog.focus(), u"Score1"_qs);
}

} // namespace
