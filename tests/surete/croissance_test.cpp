#include "commun/programme_pilote.h"

#include <QPixmapCache>

#include <malloc.h>

#include <algorithm>
#include <limits>

namespace {

qint64 octetsEnUsage()
{
    const struct mallinfo2 infos = mallinfo2();
    return qint64(infos.uordblks) + qint64(infos.hblkhd);
}

qsizetype objets(const QWidget *torvik)
{
    return QApplication::allWidgets().size() + torvik->findChildren<QObject *>().size();
}

} // namespace

// A day opens the same forms hundreds of times. What leaks is gone again after each batch of openings; what only grows
// once, as tables of caches that double do, spares a batch. VARLOTOUR_OUVERTURES gives how often each form is opened.
TEST(Croissance, FormsOpenedAndClosedAgainAndAgainLeaveNothing)
{
    constexpr int rodage = 4;
    constexpr int lots = 3;
    // The rules of the style sheet for a control that is asked for its look while it is made stay until another control
    // has its address: some kilobytes for a form with many lists.
    constexpr qint64 octetsParOuverture = 8000;
    const int parLot = std::max(10, qEnvironmentVariableIntValue("VARLOTOUR_OUVERTURES") / lots);
    // Qt would keep pictures up to a limit, and their names until a timer comes round that a short test does not see.
    QPixmapCache::setCacheLimit(0);
    ProgrammePilote prog;
    ASSERT_TRUE(prog.demarre());
    const qint32 concours = poseConcours(prog.base(), {.equipes = equipesDeClubs(2)});
    poseRencontres(prog.base(), concours, {{.tour = 1, .rencontre = 1, .equipe1 = 1, .equipe2 = 2}});
    prog.boites.repondATout();
    for (const QString &nom : prog.formulaires().noms()) {
        const auto ouvreEtFerme = [&](int fois) {
            for (int i = 0; i < fois; ++i) {
                prog.partage().ConcoursCourant = concours;
                prog.formulaires().Montre(NomForme(nom));
                QApplication::processEvents();
                prog.formulaires().DechargeTout();
                QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                QApplication::processEvents();
            }
        };
        ouvreEtFerme(rodage);
        const qsizetype objetsAvant = objets(prog.torvik());
        qint64 moindre = std::numeric_limits<qint64>::max();
        for (int lot = 0; lot < lots; ++lot) {
            const qint64 avant = octetsEnUsage();
            ouvreEtFerme(parLot);
            moindre = std::min(moindre, (octetsEnUsage() - avant) / parLot);
        }
        EXPECT_EQ(objets(prog.torvik()), objetsAvant) << nom.toStdString();
        EXPECT_LE(moindre, octetsParOuverture) << nom.toStdString();
        RecordProperty(nom.toLatin1().constData(), std::to_string(moindre));
    }
}
