#pragma once

#include "commun/affiche.h"
#include "commun/base_essai.h"
#include "partage/partage.h"

/// A day and a time that change only when a test changes them.
class HorlogeArretee : public Horloge
{
public:
    QDate jour() const override { return date; }
    QTime heure() const override { return instant; }
    qint64 ecoule() const override { return millisecondes; }

    QDate date = QDate(2026, 7, 14);
    QTime instant = QTime(9, 30);
    qint64 millisecondes = 0;
};

/// The shared state of a program on an open base of its own; \p graine fixes the draws.
class PartageEssai
{
public:
    explicit PartageEssai(quint32 graine = 1)
        : alea(graine)
    {
        partage.EspaceTravail = &partage.moteurBase.Workspaces(0);
        partage.BaseDonnees = base.ouvre();
    }

    store::BaseNative &native() { return partage.BaseDonnees.native(); }

    BaseEssai base;
    AleaFixe alea;
    HorlogeArretee horloge;
    Partage partage{base.dossier(), alea, horloge};
};
