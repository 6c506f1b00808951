#pragma once

#include "store/valeur.h"

#include <initializer_list>
#include <memory>

namespace store {

struct BaseOuverte;
class RecordsetBase;

/// A field of the current row: reads as a Valeur, takes one when it is assigned.
class ChampCourant
{
public:
    ChampCourant(RecordsetBase &jeu, int place)
        : m_jeu(jeu)
        , m_place(place)
    {
    }
    ChampCourant &operator=(const Valeur &valeur);
    ChampCourant(const ChampCourant &) = default;
    ChampCourant &operator=(const ChampCourant &autre);

    /// What the field holds; a field of a new row that nothing has been assigned to is Null.
    Valeur valeur() const;
    // The same, read as Valeur reads it: all but texte() and estNull() throw on what they cannot convert.
    operator Valeur() const { return valeur(); }
    bool estNull() const { return valeur().estNull(); }
    qint64 entier() const { return valeur().entier(); }
    qint64 entierOu(qint64 defaut) const { return valeur().entierOu(defaut); }
    QString texte() const { return valeur().texte(); }
    bool booleen() const { return valeur().booleen(); }
    QDate date() const { return valeur().date(); }

private:
    RecordsetBase &m_jeu;
    int m_place;
};

/// Rows of a table or of a statement, one of them current. Every failure throws Erreur.
class Recordset
{
public:
    explicit Recordset(std::unique_ptr<RecordsetBase> jeu);
    ~Recordset();
    Recordset(Recordset &&) noexcept;
    Recordset &operator=(Recordset &&) noexcept;

    /// Puts a table recordset into the order of one of its indexes.
    void Index(QStringView nom);
    /// First row of the index that meets \p op ("=", ">=", ">") with the leading key fields \p cles, in the order of
    /// the index: behind a descending field, "greater" means a lower value. Sets NoMatch.
    void Seek(QStringView op, std::initializer_list<Valeur> cles);
    /// Whether the last Seek found nothing; there is no current row then.
    bool NoMatch() const;

    /// Whether there is no current row: past the last one, or none at all.
    bool Eof() const;
    /// Throws when there is no row; a recordset that has just been opened stands on its first one.
    void MoveFirst();
    /// Throws past the last row.
    void MoveNext();
    /// \p lignes rows forward or, below 0, backward; a table goes forward only. Throws when that leads before the first
    /// row or further than past the last one.
    void Move(qint64 lignes);
    /// Number of rows.
    qint64 RecordCount() const;

    /// Begins a new row; the number that the store generates for it can be read at once. Throws on a result that cannot
    /// be changed.
    void AddNew();
    /// Begins a change of the current row. Throws without one, and on a result that cannot be changed.
    void Edit();
    /// Stores what AddNew or Edit began; a new row becomes the current one. Throws when neither has begun anything, and
    /// when a key refuses the row.
    void Update();
    /// Removes the current row. The position stays where the row was until the next move.
    void Delete();
    /// Gives the rows up; any use behind it throws.
    void Close();

    /// Field of the current row. Throws when there is no such field, or no row.
    ChampCourant operator[](QStringView nom) const;
    /// Field by its place, counted from 0.
    ChampCourant operator[](int place) const;

private:
    RecordsetBase &jeu() const;

    std::unique_ptr<RecordsetBase> m_jeu;
};

} // namespace store
