#include "clock/frmhorloge.h"

#include "commun/programme_pilote.h"
#include "socle/twips.h"
#include "son/son.h"

#include <QListWidget>
#include <QTimer>
#include <QWindow>

namespace {

const QString nom = u"FrmHorloge"_qs;

/// Keeps what it should have played.
class SonNote final : public Son
{
public:
    explicit SonNote(QStringList &joues)
        : m_joues(joues)
    {
    }
    void PlaySound(const QString &fichier) override { m_joues += fichier; }

private:
    QStringList &m_joues;
};

/// The toolbox on a clock that stands still; seconds come when the test says so.
class BoiteAOutils : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(prog.demarre());
        prog.ouvre(u"chrono"_qs);
        ASSERT_NE(forme(), nullptr);
        forme()->prendSon(std::make_unique<SonNote>(joues));
        forme()->controle<QTimer>(u"Timer1"_qs)->stop();
    }

    FrmHorloge *forme() { return qobject_cast<FrmHorloge *>(prog.formulaires().forme(nom)); }
    template<typename Widget>
    Widget *controle(const QString &lequel)
    {
        return prog.controle<Widget>(nom, lequel);
    }
    QString texte(const QString &etiquette) { return controle<QLabel>(etiquette)->text(); }
    void clique(const QString &bouton) { prog.clique(nom, bouton); }

    /// Time goes on by \p secondes, then the clock ticks.
    void passe(int secondes)
    {
        if (prog.horloge.instant.addSecs(secondes) < prog.horloge.instant)
            prog.horloge.date = prog.horloge.date.addDays(1);
        prog.horloge.instant = prog.horloge.instant.addSecs(secondes);
        forme()->Timer1_Timer();
    }
    QString chrono()
    {
        return texte(u"heures"_qs) + u' ' + texte(u"minutes"_qs) + u' ' + texte(u"secondes"_qs) + u' '
            + texte(u"centiemes"_qs);
    }
    QString alarme() { return texte(u"AlarmeHeures"_qs) + texte(u"AlarmeMinutes"_qs) + texte(u"AlarmeSecondes"_qs); }
    QString couleur() { return controle<QWidget>(u"PanneauAlarme"_qs)->property("alarme").toString(); }
    bool dessus() { return forme()->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint); }
    void metAlarme(const std::optional<QString> &minutes)
    {
        prog.boites.attendSaisie(u"Combien de minutes?"_qs, minutes);
        clique(u"Command1"_qs);
    }

    void limite(const QString &frappe)
    {
        controle<QLineEdit>(u"Maxvaleur"_qs)->setFocus();
        controle<QLineEdit>(u"Maxvaleur"_qs)->selectAll();
        prog.tape(frappe);
    }
    QString limite() { return controle<QLineEdit>(u"Maxvaleur"_qs)->text(); }
    QStringList sortis()
    {
        QStringList numeros;
        for (int ligne = 0; ligne < controle<QListWidget>(u"resutir"_qs)->count(); ++ligne)
            numeros += controle<QListWidget>(u"resutir"_qs)->item(ligne)->text();
        return numeros;
    }
    QString rouleaux()
    {
        QString figures;
        for (const QString &rouleau : {u"IMAGES_0"_qs, u"IMAGES_1"_qs, u"IMAGES_2"_qs})
            figures += QString::number(controle<Rouleau>(rouleau)->figureMontree());
        return figures;
    }
    void lance()
    {
        clique(u"lancer"_qs);
        for (int etape = 1; etape <= 4; ++etape)
            forme()->Timer14_Timer();
    }

    ProgrammePilote prog;
    QStringList joues;
};

TEST_F(BoiteAOutils, OuverteEtFermeeParLeMemeBouton)
{
    EXPECT_EQ(forme()->Left(), Ecran::Width() - forme()->Width());
    EXPECT_EQ(forme()->Top(), 0);
    // Small enough to leave the entry of results free, and read across the ground once it is enlarged by hand.
    EXPECT_LE(forme()->width(), 712);
    EXPECT_LE(forme()->height(), 132);
    const auto lettres = [&] { return controle<QLabel>(u"Heure"_qs)->font().pixelSize(); };
    EXPECT_GE(lettres(), 18);
    forme()->resize(1300, 700);
    QApplication::processEvents();
    EXPECT_GE(lettres(), 80);
    EXPECT_GE(controle<QWidget>(u"Picture1"_qs)->height(), 400);

    EXPECT_EQ(texte(u"Heure"_qs), u"09:30:00"_qs);
    passe(61);
    EXPECT_EQ(texte(u"Heure"_qs), u"09:31:01"_qs);
    EXPECT_EQ(forme()->windowTitle(), u"Boite à outils 09:31:01"_qs);
    prog.ouvre(u"chrono"_qs);
    EXPECT_FALSE(prog.formulaires().estChargee(nom));
}

TEST_F(BoiteAOutils, ChronometreJusteApresUnBlocage)
{
    const auto *timer = forme()->controle<QTimer>(u"Timer2"_qs);
    clique(u"start"_qs);
    EXPECT_FALSE(controle<QPushButton>(u"start"_qs)->isEnabled());
    prog.horloge.millisecondes += 3'725'678; // over an hour without a tick
    EXPECT_TRUE(QTest::qWaitFor([&] { return chrono() == u"01 02 05 67"_qs; })) << chrono().toStdString();
    prog.formulaires().Cache(NomForme(nom));
    EXPECT_FALSE(timer->isActive());
    prog.horloge.millisecondes += 60'000;
    prog.formulaires().Montre(NomForme(nom));
    EXPECT_TRUE(QTest::qWaitFor([&] { return chrono() == u"01 03 05 67"_qs; }));
    prog.horloge.millisecondes += 330;
    clique(u"stop"_qs);
    EXPECT_EQ(chrono(), u"01 03 06 00"_qs); // shown to the moment of the click
    EXPECT_FALSE(timer->isActive());
    EXPECT_TRUE(controle<QPushButton>(u"start"_qs)->isEnabled());
    prog.formulaires().Cache(NomForme(nom));
    prog.formulaires().Montre(NomForme(nom));
    EXPECT_FALSE(timer->isActive());
    clique(u"effacer"_qs);
    EXPECT_EQ(chrono(), u"00 00 00 00"_qs);
}

TEST_F(BoiteAOutils, AlarmeSonneClignoteEtPasseDevant)
{
    forme()->Move(1500, 750);
    metAlarme(u"2"_qs);
    EXPECT_EQ(prog.boites.titre(), u"Alarme"_qs);
    EXPECT_EQ(prog.boites.coin(), QPoint(4500, 2750));
    EXPECT_EQ(alarme(), u"09: 32: 00"_qs);
    EXPECT_EQ(forme()->HeureAlarme(), QDateTime(prog.horloge.date, QTime(9, 32)));
    passe(120); // the time reached is shown now, and rings from the next second on
    EXPECT_TRUE(joues.isEmpty());
    EXPECT_FALSE(dessus());
    prog.formulaires().Cache(NomForme(nom));
    QStringList couleurs;
    for (int seconde = 0; seconde < 3; ++seconde) {
        passe(1);
        couleurs += couleur();
    }
    EXPECT_EQ(couleurs, QStringList({u"rouge"_qs, u"blanc"_qs, u"rouge"_qs}));
    EXPECT_EQ(joues, QStringList(3, prog.dossier() + u"/drelin.WAV"_qs));
    EXPECT_GE(controle<QLabel>(u"AlarmeMinutes"_qs)->font().pixelSize(), 18) << "letters change with the colour";
    EXPECT_TRUE(forme()->isVisible());
    EXPECT_TRUE(dessus());

    clique(u"Command1"_qs); // asks nothing
    EXPECT_EQ(alarme(), QString());
    EXPECT_EQ(couleur(), u"blanc"_qs);
    EXPECT_FALSE(dessus());
    passe(1);
    EXPECT_EQ(joues.size(), 3);
}

TEST_F(BoiteAOutils, AlarmeSansNombreNeSeMetPas)
{
    metAlarme(u"dix"_qs);
    EXPECT_EQ(alarme(), u"--: --: --"_qs);
    for (const std::optional<QString> &rien : {std::optional<QString>(), std::optional(QString())}) {
        metAlarme(rien); // asked anew: none is set
        EXPECT_EQ(alarme(), QString());
    }
    passe(86399);
    passe(1);
    EXPECT_TRUE(joues.isEmpty());
}

TEST_F(BoiteAOutils, LimitesDeLaLoterie)
{
    limite(u"999"_qs);
    EXPECT_EQ(forme()->Tirages().size(), 999u);
    EXPECT_EQ(prog.partage().RestantTirages, 999);
    EXPECT_EQ(prog.partage().EssaisTirage, 999); // one storage
    limite(u"1000"_qs);
    EXPECT_EQ(limite(), QString());
    EXPECT_EQ(forme()->Tirages().size(), 2u);
    prog.boites.attend(u"Tous les coups ont été tirés"_qs);
    clique(u"lancer"_qs); // nothing to draw without a limit
    clique(u"RAZ"_qs);
    EXPECT_EQ(limite(), u"2"_qs);
    limite(u"7"_qs);
    limite(u"0"_qs);
    EXPECT_EQ(limite(), u"2"_qs);
    EXPECT_EQ(forme()->Tirages(), (std::vector<qint16>{1, 2}));
    limite(u"-+e"_qs);
    EXPECT_EQ(limite(), u"2"_qs);
}

TEST_F(BoiteAOutils, TirageEtapeParEtape)
{
    EXPECT_EQ(texte(u"Label7"_qs), u"Résultats"_qs);
    limite(u"999"_qs);
    clique(u"lancer"_qs);
    const auto timer = [&](const QString &lequel) { return forme()->controle<QTimer>(lequel); };
    for (const QString &bloque : {u"lancer"_qs, u"RAZ"_qs, u"Maxvaleur"_qs})
        EXPECT_FALSE(controle<QWidget>(bloque)->isEnabled());
    EXPECT_GE(timer(u"Timer14"_qs)->interval(), 500);
    EXPECT_LE(timer(u"Timer14"_qs)->interval(), 1500);
    const QStringList rouleauxTimers{u"Timer11"_qs, u"Timer12"_qs, u"Timer13"_qs};
    for (const QString &tourne : rouleauxTimers) {
        EXPECT_GE(timer(tourne)->interval(), 20);
        EXPECT_LE(timer(tourne)->interval(), 50);
    }
    const QString avant = rouleaux();
    EXPECT_TRUE(QTest::qWaitFor([&] { return rouleaux() != avant; }));
    timer(u"Timer14"_qs)->stop();
    for (int etape = 1; etape <= 4; ++etape) {
        EXPECT_TRUE(sortis().isEmpty());
        forme()->Timer14_Timer();
        for (int colonne = 0; colonne < 3; ++colonne)
            EXPECT_EQ(timer(rouleauxTimers[colonne])->isActive(), colonne > etape - 2) << etape << colonne;
    }
    ASSERT_EQ(sortis().size(), 1);
    EXPECT_EQ(sortis().first(), rouleaux());
    EXPECT_EQ(controle<QListWidget>(u"resutir"_qs)->currentRow(), 0);
    EXPECT_EQ(texte(u"Label7"_qs), u"1"_qs);
    EXPECT_EQ(prog.partage().RestantTirages, 998);
    EXPECT_EQ(prog.focus(), u"lancer"_qs); // the next Enter draws again

    prog.formulaires().Cache(NomForme(nom));
    prog.formulaires().Montre(NomForme(nom));
    EXPECT_EQ(sortis().size(), 1);
    clique(u"RAZ"_qs);
    EXPECT_TRUE(sortis().isEmpty());
    EXPECT_EQ(texte(u"Label7"_qs), u"Tirages"_qs);
    EXPECT_EQ(prog.partage().RestantTirages, 999);
}

TEST_F(BoiteAOutils, LeCompteDesTiragesJusquAuDernier)
{
    limite(u"3"_qs);
    for (int rang = 1; rang <= 3; ++rang) {
        if (rang == 2)
            prog.partage().EssaisTirage = 1; // a round has been drawn meanwhile
        lance();
        EXPECT_EQ(rouleaux(), sortis().last());
        EXPECT_EQ(texte(u"Label7"_qs), rang == 3 ? u"Tirages"_qs : QString::number(rang));
    }
    prog.boites.attend(u"Tous les coups ont été tirés"_qs);
    clique(u"lancer"_qs);
    EXPECT_EQ(prog.boites.drapeaux(), vbOKOnly);
}

TEST_F(BoiteAOutils, BatASecondePleine)
{
    forme()->Timer1_Timer();
    prog.horloge.instant = QTime(9, 30, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return texte(u"Heure"_qs) == u"09:30:01"_qs; }, 2000));
    prog.horloge.instant = QTime(9, 30, 1, 990);
    forme()->Timer1_Timer();
    EXPECT_LT(forme()->controle<QTimer>(u"Timer1"_qs)->interval(), 20);
}

} // namespace
