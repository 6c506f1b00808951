#pragma once

#include "app/partage.h"

/// Folder of the safety copies, beside the base.
inline const QString dossierSauvegardes = u"sauvegardes"_qs;

/// Begins, beside the caller's work, what would make the first copy slow. For an open base.
void PrepareSauvegardes(Partage &partage);

/// Puts a dated copy of the open base, encrypted like it, into dossierSauvegardes, unless nothing has been written
/// since the last one, in this run or an earlier one, or Partage::AvecCopies is off. At most 20 copies stay there: the
/// oldest go, except the first of today. Gives the sentence to show when the copy could not be made, empty otherwise;
/// never throws.
QString SauveBase(Partage &partage);
