#include "commun/fichiers_essai.h"

#include <gtest/gtest.h>

#include <QFile>

QByteArray octetsDe(const QString &fichier)
{
    QFile lu(fichier);
    return lu.open(QIODevice::ReadOnly) ? lu.readAll() : QByteArray();
}

void ecritFichier(const QString &fichier, const QByteArray &octets)
{
    QFile ecrit(fichier);
    EXPECT_TRUE(ecrit.open(QIODevice::WriteOnly) && ecrit.write(octets) == octets.size()) << fichier.toStdString();
}

void abimeFichier(const QString &fichier, int place)
{
    ecritFichier(fichier, octetsDe(fichier).replace(place, 400, QByteArray(400, 'x')));
}
