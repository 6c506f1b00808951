#pragma once

#include "engine/rapport_tirage.h"
#include "fenetres/formulaire.h"

/// Prints \p rapport, a match a line with its remark of \p remarques, under \p titre and the heads \p entetes of its
/// six columns; the lines of \p bilan stand below.
void ImprimeRapport(const Contexte &contexte, const moteur::RapportTour &rapport, const QHash<int, QString> &clubs,
                    const QStringList &entetes, const QStringList &remarques, const QString &bilan,
                    const QString &titre);
