#include "clock/alarme.h"
#include "clock/cadran.h"
#include "clock/chronometre.h"
#include "clock/loterie.h"
#include "commun/programme_pilote.h"
#include "son/son.h"

#include <cmath>
#include <set>

namespace {

TEST(Loterie, ChaqueNumeroUneFois)
{
    std::vector<qint16> tirages;
    qint16 restant = 0;
    Loterie loterie(tirages, restant);
    AleaFixe alea(7);
    for (const qint16 limite : {qint16(1), qint16(2), qint16(50), Loterie::limiteMax}) {
        loterie.remplit(limite);
        ASSERT_EQ(tirages.size(), size_t(limite));
        EXPECT_EQ(tirages.back(), limite);
        std::set<int> sortis;
        for (int rang = 1; rang <= limite; ++rang) {
            ASSERT_FALSE(loterie.epuisee());
            loterie.tire(rang % 5 == 0 ? std::nextafter(1.0, 0.0) : alea.suivant());
            sortis.insert(loterie.NumeroTire());
            ASSERT_EQ(restant, limite - rang);
            if (rang == limite / 2)
                restant = 3; // a round is drawn in between, on the same storage
        }
        EXPECT_TRUE(loterie.epuisee());
        EXPECT_EQ(sortis.size(), size_t(limite));
        EXPECT_EQ(*sortis.begin(), 1);
        EXPECT_EQ(*sortis.rbegin(), limite);
    }
}

TEST(Loterie, LeDernierEnJeuPrendLaPlaceDuNumeroTire)
{
    std::vector<qint16> tirages;
    qint16 restant = 0;
    Loterie loterie(tirages, restant);
    loterie.remplit(5);
    loterie.tire(0.2); // the whole part of 0.2 x 5
    EXPECT_EQ(loterie.NumeroTire(), 2);
    EXPECT_EQ(tirages, (std::vector<qint16>{1, 5, 3, 4, 5}));
    EXPECT_EQ(restant, 4);
    loterie.tire(0.3);
    EXPECT_EQ(loterie.NumeroTire(), 5);
}

TEST(Chronometre, SuitLeTempsEtReporte)
{
    HorlogeArretee horloge;
    horloge.millisecondes = 86'400'123; // a start is not a zero
    Chronometre chrono(horloge);
    using Champs = Chronometre::Champs;
    const auto passe = [&](qint64 ms) { horloge.millisecondes += ms; };
    passe(5000);
    EXPECT_EQ(chrono.champs(), Champs{});
    chrono.demarre();
    passe(999);
    EXPECT_EQ(chrono.champs(), (Champs{0, 0, 0, 99}));
    passe(1);
    EXPECT_EQ(chrono.champs(), (Champs{0, 0, 1, 0}));
    passe(3'599'000 - 10);
    EXPECT_EQ(chrono.champs(), (Champs{0, 59, 59, 99}));
    passe(10);
    EXPECT_EQ(chrono.champs(), (Champs{1, 0, 0, 0}));
    chrono.arrete();
    passe(70'000);
    EXPECT_EQ(chrono.champs(), (Champs{1, 0, 0, 0}));
    chrono.demarre();
    passe(59 * 3'600'000LL + 250);
    EXPECT_EQ(chrono.champs(), (Champs{0, 0, 0, 25})); // the hours carry at 60 like the rest
    chrono.efface();
    passe(420);
    EXPECT_EQ(chrono.champs(), (Champs{0, 0, 0, 42}));
}

/// Seconds after midnight at which an alarm first rings when the clock goes on second by second, over two days.
int premiereSonnerie(const QString &minutes, QTime maintenant)
{
    QDateTime heure;
    Alarme alarme(heure);
    const QDateTime mise(QDate(2026, 7, 14), maintenant);
    if (!alarme.regle(minutes, mise))
        return -1;
    // The display can be a second behind the clock.
    for (int ecoulees = -1; ecoulees < 2 * 86400; ++ecoulees) {
        if (alarme.sonne(mise.addSecs(ecoulees)))
            return ecoulees;
    }
    return -2;
}

TEST(Alarme, SonneALHeureDite)
{
    EXPECT_EQ(premiereSonnerie(u"15"_qs, QTime(9, 30)), 15 * 60);
    EXPECT_EQ(premiereSonnerie(u"1,5"_qs, QTime(9, 30)), 90);
    EXPECT_EQ(premiereSonnerie(u" 0.25 "_qs, QTime(9, 30)), 15);
    EXPECT_EQ(premiereSonnerie(u"0"_qs, QTime(9, 30)), 0);
    EXPECT_EQ(premiereSonnerie(u"-5"_qs, QTime(9, 30)), -1);
    // Across midnight, up to a whole day
    EXPECT_EQ(premiereSonnerie(u"20"_qs, QTime(23, 50)), 20 * 60);
    EXPECT_EQ(premiereSonnerie(u"10"_qs, QTime(23, 50)), 10 * 60);
    EXPECT_EQ(premiereSonnerie(u"1439"_qs, QTime(12, 0)), 1439 * 60);
    EXPECT_EQ(premiereSonnerie(u"1440"_qs, QTime(12, 0)), 1440 * 60);
    for (const QString &texte : {u"dix"_qs, u"5 min"_qs, u"nan"_qs, u"inf"_qs, u"1e9"_qs, u"٣"_qs, u" "_qs, u"--"_qs})
        EXPECT_EQ(premiereSonnerie(texte, QTime(9, 30)), -1) << texte.toStdString();
}

TEST(Alarme, UneHorlogeRemiseALHeureNEstPasMinuit)
{
    QDateTime heure;
    Alarme alarme(heure);
    const QDateTime mise(QDate(2026, 7, 14), QTime(23, 50));
    ASSERT_TRUE(alarme.regle(u"20"_qs, mise));
    EXPECT_FALSE(alarme.sonne(mise.addSecs(-60)));
    EXPECT_FALSE(alarme.sonne(mise.addSecs(60)));
    EXPECT_TRUE(alarme.sonne(mise.addSecs(20 * 60)));
}

/// Farthest point from the centre, along the ray \p minute of 60, at which the picture is not white; units of the
/// dial. Looks inside the circle only.
double longueur(const QImage &image, double minute, int jusque)
{
    constexpr int quarts = 4;
    const double angle = minute / 60 * 2 * M_PI;
    for (int pas = jusque * quarts; pas > 8 * quarts; --pas) {
        const double r = double(pas) / quarts;
        const QPointF point(100 + r * std::sin(angle), 100 - r * std::cos(angle));
        if (qGray(image.pixel(int(point.x() * 2), int(point.y() * 2))) < 200)
            return r;
    }
    return 0;
}

TEST(Cadran, AiguillesALeurPlace)
{
    constexpr double dansLeCercle = 68;
    Cadran cadran;
    cadran.resize(400, 400);
    const auto photo = [&](QTime heure) {
        cadran.montre(heure);
        return cadran.grab().toImage();
    };
    // 16:40:05: the hour hand stands exactly on 4, as if it were 16:00.
    const QImage image = photo(QTime(16, 40, 5));
    EXPECT_NEAR(longueur(image, 20, dansLeCercle), 50, 2);
    EXPECT_NEAR(longueur(image, 5, dansLeCercle), 55, 1.5);
    EXPECT_NEAR(longueur(image, 40, dansLeCercle), dansLeCercle, 0.5); // reaches the circle
    for (const double vide : {0.0, 10.0, 23.3, 30.0, 50.0})
        EXPECT_EQ(longueur(image, vide, dansLeCercle), 0) << vide;
    EXPECT_NEAR(longueur(image, 52.5, 72), 70, 1); // the circle itself
    const QImage midi = photo(QTime(12, 15, 30));
    EXPECT_NEAR(longueur(midi, 0, dansLeCercle), 50, 2);
    EXPECT_NEAR(longueur(midi, 30, dansLeCercle), 55, 1.5);
}

TEST(Son, RienNeManqueEnSilence)
{
    static int plaintes = 0;
    plaintes = 0;
    const QtMessageHandler console =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++plaintes; });
    SonQt son;
    QTemporaryDir dossier;
    for (int fois = 0; fois < 3; ++fois) {
        son.PlaySound(dossier.filePath(u"drelin.WAV"_qs));
        son.PlaySound(dossier.path());
        son.PlaySound(QStringLiteral(VARLOTOUR_SON));
        QTest::qWait(20);
    }
    qInstallMessageHandler(console);
    EXPECT_EQ(plaintes, 0);
}

} // namespace
