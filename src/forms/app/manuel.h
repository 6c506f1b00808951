#pragma once

#include <QString>

class Boites;

/// Where the page of the manual stands for a program in the folder \p programme: beside it, or in the documents of a
/// system-wide installation, \p papiers as seen from that folder. The first of the two when there is none.
QString FichierManuel(const QString &programme, const QString &papiers);
/// Shows that page in the browser; a box tells where it is, or that it is missing, when this cannot be done.
void OuvreManuel(const QString &fichier, Boites &boites);
