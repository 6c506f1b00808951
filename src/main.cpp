#include "app/programme.h"
#include "ui/apparence.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    appliqueApparence(application);
    BoitesQt boites;

    const QString dossier = QApplication::applicationDirPath();
    const InstanceUnique instance(dossier);
    if (instance.cedeLaPlace(boites))
        return 0;
    AleaHorloge alea;
    const Horloge horloge;
    Programme programme(dossier, alea, horloge, boites);
    if (!programme.demarre())
        return 1;
    return QApplication::exec();
}
