#include "commun/concours_en_base.h"
#include "commun/programme_pilote.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QPixmapCache>

#include <malloc.h>

namespace {

/// Bytes in use, without the pictures that Qt keeps up to a limit of its own.
qint64 tas()
{
    QPixmapCache::clear();
    const struct mallinfo2 infos = mallinfo2();
    return qint64(infos.uordblks) + qint64(infos.hblkhd);
}

qsizetype objets(const QWidget *torvik)
{
    return QApplication::allWidgets().size() + torvik->findChildren<QObject *>().size();
}

} // namespace

// A day opens the same forms hundreds of times. VARLOTOUR_OUVERTURES gives how often each is opened; without it, as
// often as a fraction of a second allows.
TEST(Croissance, FormsOpenedAndClosedAgainAndAgainLeaveNothing)
{
    constexpr int rodage = 8;
    constexpr int dureeMs = 150;
    // Qt keeps the names of the pictures that it has drawn until a timer of its own comes round.
    constexpr qint64 octetsParOuverture = 4000;
    constexpr qint64 jeu = 64 * 1024; // tables of caches that double once
    const int voulues = qEnvironmentVariableIntValue("VARLOTOUR_OUVERTURES");
    ProgrammePilote prog;
    ASSERT_TRUE(prog.demarre());
    const qint32 concours = poseConcours(prog.base(), {.equipes = {{1, u"A"_qs}, {2, u"B"_qs}}});
    poseRencontres(prog.base(), concours, {{.tour = 1, .rencontre = 1, .equipe1 = 1, .equipe2 = 2}});
    prog.boites.repondATout();
    for (const QString &nom : prog.formulaires().noms()) {
        const auto ouvreEtFerme = [&] {
            prog.partage().ConcoursCourant = concours;
            prog.formulaires().Montre(NomForme(nom));
            QApplication::processEvents();
            prog.formulaires().DechargeTout();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QApplication::processEvents();
        };
        for (int i = 0; i < rodage; ++i)
            ouvreEtFerme();
        const qsizetype objetsAvant = objets(prog.torvik());
        const qint64 avant = tas();
        QElapsedTimer duree;
        duree.start();
        int fois = 0;
        for (; voulues > 0 ? fois < voulues : !duree.hasExpired(dureeMs); ++fois)
            ouvreEtFerme();
        EXPECT_EQ(objets(prog.torvik()), objetsAvant) << nom.toStdString();
        EXPECT_LE(tas() - avant, jeu + fois * octetsParOuverture) << nom.toStdString() << " x " << fois;
    }
}
