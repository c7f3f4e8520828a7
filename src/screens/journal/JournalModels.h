#pragma once
// The journal's tables as models over what the core found: a cell is worked
// out when the view shows it, so that a search over thousands of entries
// costs the view only the rows on the screen. Each sorts by any column as
// the view asks; rows that compare equal keep the core's order, so that the
// table and the chart beside it agree.
#include <QAbstractTableModel>
#include <QStringList>
#include <functional>
#include <vector>

#include "core/journal/Journal.h"

class JournalTable : public QAbstractTableModel {
    Q_OBJECT
public:
    JournalTable(const QStringList& headings, std::vector<int> figureColumns, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

    // The position in the core's list of the row shown at `row`.
    int SourceRow(int row) const { return order_[static_cast<std::size_t>(row)]; }

protected:
    // Takes new rows: the change runs inside a reset, then the rows are
    // sorted as the view last asked.
    template <class Change>
    void Replace(Change&& change) {
        beginResetModel();
        change();
        Order();
        endResetModel();
    }
    virtual int SourceCount() const = 0;
    virtual QString Text(int source, int column) const = 0;
    virtual QString ToolTip(int, int) const { return {}; }
    // The source rows in the order of a column; rows that compare equal
    // keep the core's order, whichever way the column runs.
    virtual std::vector<int> SortedRows(int column, bool ascending) const = 0;

    // Rows 0 to n - 1 in the order of their keys, one a row; rows of equal
    // keys keep theirs.
    static std::vector<int> StableOrder(const std::vector<qint64>& keys, bool ascending);
    // Keys that sort texts as the user's language does, numbers within
    // them by value ("Card 2" before "Card 10"); equal texts get equal keys.
    static std::vector<qint64> TextKeys(int count, const std::function<QString(int)>& text);

private:
    void Order();

    QStringList headings_;
    std::vector<int> figureColumns_;
    std::vector<int> order_;
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

// The entries a search selected: date, kind, name, spread, deck, cards.
class JournalResultsModel : public JournalTable {
    Q_OBJECT
public:
    JournalResultsModel(const Journal& journal, const JournalCatalogue& catalogue, QObject* parent);
    void SetSelection(const std::vector<int>& selected);
    // The entry shown at a row, as a position in the journal.
    int EntryAt(int row) const { return selected_[static_cast<std::size_t>(SourceRow(row))]; }

protected:
    int SourceCount() const override { return static_cast<int>(selected_.size()); }
    QString Text(int source, int column) const override;
    QString ToolTip(int source, int column) const override;
    std::vector<int> SortedRows(int column, bool ascending) const override;

private:
    std::vector<qint64> EntryKeys(int column) const;
    // Every entry of the journal in the order of a column, worked out the
    // first time the column sorts that way: a search then takes its entries
    // in that order without sorting, as the user types.
    const std::vector<int>& EntriesInOrder(int column, bool ascending) const;

    const Journal& journal_;
    const JournalCatalogue& catalogue_;
    std::vector<int> selected_;
    mutable std::vector<std::vector<int>> entriesInOrder_;  // by column, ascending then descending
};

// Every card counted: total, upright, reversed, card, deck, type.
class JournalCardsModel : public JournalTable {
    Q_OBJECT
public:
    explicit JournalCardsModel(QObject* parent);
    void SetCards(const std::vector<CardTally>& cards);

protected:
    int SourceCount() const override { return static_cast<int>(cards_.size()); }
    QString Text(int source, int column) const override;
    std::vector<int> SortedRows(int column, bool ascending) const override;

private:
    std::vector<CardTally> cards_;
};

// One spread's locations and the cards most often there.
class JournalLocationsModel : public JournalTable {
    Q_OBJECT
public:
    explicit JournalLocationsModel(QObject* parent);
    void SetLocations(std::vector<LocationTally> locations);

protected:
    int SourceCount() const override { return static_cast<int>(locations_.size()); }
    QString Text(int source, int column) const override;
    std::vector<int> SortedRows(int column, bool ascending) const override;

private:
    std::vector<LocationTally> locations_;
};
