#pragma once

#include "store/base_native.h"

#include <QStringList>

/// Rows of a statement, their fields joined by "|"; "Null" for a field without a value.
QStringList Lignes(store::BaseNative &base, const QString &sql);

/// Every row of the tables of the file but \p sauf, as "table|field|field", in the order of writing.
QStringList Contenu(store::BaseNative &base, const QString &sauf = {});
