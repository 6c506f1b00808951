#pragma once

#include "store/base_native.h"

#include <QStringList>

/// Every row of the tables of the file but \p sauf, as "table|field|field", in the order of writing.
QStringList Contenu(store::BaseNative &base, const QString &sauf = {});
