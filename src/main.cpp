#include "app/manuel.h"
#include "app/programme.h"
#include "app/torvik.h"
#include "aspect/apparence.h"
#include "aspect/echelle.h"
#include "fenetres/fin_demandee.h"
#include "garde/dossier_travail.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

namespace {

DossierTravail dossierTravail()
{
    const QString programme = QApplication::applicationDirPath();
    const QString installes = QDir::cleanPath(QDir(programme).filePath(QStringLiteral(VARLOTOUR_ORIGINAUX)));
    const QString personnel = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return DossierTravail({programme, installes, personnel}, dossierInscriptible(programme));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setApplicationName(u"VarloTour"_qs);
    QApplication::setApplicationVersion(QStringLiteral(VARLOTOUR_VERSION));
    QApplication::setDesktopFileName(u"fr.varlotour.VarloTour"_qs);
    const std::unique_ptr<QApplication> application = ouvreApplication(argc, argv);
    appliqueApparence(*application);
    BoitesQt boites;
    FinDemandee fin;
    // Every loop ends, those of boxes too, so that no handler is left in its middle; the base is closed behind them.
    QObject::connect(&fin, &FinDemandee::demandee, [] { QApplication::exit(); });

    const DossierTravail dossier = dossierTravail();
    const InstanceUnique instance(dossier.chemin());
    if (instance.cedeLaPlace(boites))
        return 0;
    if (const QString phrase = dossier.remplit(); !phrase.isEmpty()) {
        boites.MsgBox(phrase, vbExclamation, u"VarloTour"_qs);
        if (!dossier.aUneBase())
            return 1;
    }
    AleaHorloge alea;
    const Horloge horloge;
    Programme programme(dossier.chemin(), alea, horloge, boites);
    programme.donneManuel(FichierManuel(QApplication::applicationDirPath(), QStringLiteral(VARLOTOUR_PAPIERS)));
    if (!programme.demarre())
        return 1;
    QObject::connect(&fin, &FinDemandee::seanceFinit, programme.torvik(), &Torvik::seanceFinit);
    const int code = fin.estDemandee() ? 0 : QApplication::exec();
    programme.termine();
    return code;
}
