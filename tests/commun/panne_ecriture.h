#pragma once

#include "store/base_native.h"

/// As long as it lives, the base lets so many rows be written and refuses all further ones, as a constraint does
/// ("abort", which undoes the statement alone) or a disk that fails for good ("rollback").
class PanneEcriture
{
public:
    PanneEcriture(store::BaseNative &base, int apres, const QString &facon = u"abort"_qs);
    ~PanneEcriture();
    Q_DISABLE_COPY_MOVE(PanneEcriture)

private:
    store::BaseNative &m_base;
    QStringList m_declencheurs;
};
