#include "app/manuel.h"

#include "fenetres/boites.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

QString FichierManuel(const QString &programme, const QString &papiers)
{
    const QString page = u"manuel.html"_qs;
    const QString aCote = QDir(programme).filePath(u"docs/"_qs + page);
    const QString installe = QDir::cleanPath(QDir(programme).filePath(papiers + u'/' + page));
    return !QFileInfo::exists(aCote) && QFileInfo::exists(installe) ? installe : aCote;
}

void OuvreManuel(const QString &fichier, Boites &boites)
{
    const bool present = QFileInfo::exists(fichier);
    if (present && QDesktopServices::openUrl(QUrl::fromLocalFile(fichier)))
        return;
    const QString phrase = present ? u"Le manuel ne s'ouvre pas d'ici ; un navigateur le montre :\r\n%1"_qs
                                   : u"Le manuel manque, il devrait être là :\r\n%1"_qs;
    boites.MsgBox(phrase.arg(QDir::toNativeSeparators(fichier)), vbExclamation, u"VarloTour"_qs);
}
