#include "screens/journal/JournalModels.h"

#include <QCollator>
#include <QLocale>
#include <algorithm>
#include <limits>
#include <numeric>

JournalTable::JournalTable(const QStringList& headings, std::vector<int> figureColumns, QObject* parent)
    : QAbstractTableModel(parent), headings_(headings), figureColumns_(std::move(figureColumns)) {}

int JournalTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int JournalTable::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : headings_.size(); }

QVariant JournalTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 && section < headings_.size())
        return headings_[section];
    return QAbstractTableModel::headerData(section, orientation, role);
}

QVariant JournalTable::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    switch (role) {
    case Qt::DisplayRole: return Text(SourceRow(index.row()), index.column());
    case Qt::ToolTipRole: {
        const QString tip = ToolTip(SourceRow(index.row()), index.column());
        return tip.isEmpty() ? QVariant() : QVariant(tip);
    }
    case Qt::TextAlignmentRole:
        if (std::find(figureColumns_.begin(), figureColumns_.end(), index.column()) != figureColumns_.end())
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    default: return {};
    }
}

void JournalTable::sort(int column, Qt::SortOrder order) {
    sortColumn_ = column;
    sortOrder_ = order;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> sourceOf;
    for (const QModelIndex& index : before) sourceOf.push_back(SourceRow(index.row()));
    Order();
    std::vector<int> rowOf(order_.size());
    for (std::size_t row = 0; row < order_.size(); ++row)
        rowOf[static_cast<std::size_t>(order_[row])] = static_cast<int>(row);
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i)
        after << index(rowOf[static_cast<std::size_t>(sourceOf[static_cast<std::size_t>(i)])], before[i].column());
    changePersistentIndexList(before, after);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void JournalTable::Order() {
    if (sortColumn_ >= 0 && sortColumn_ < headings_.size()) {
        order_ = SortedRows(sortColumn_, sortOrder_ == Qt::AscendingOrder);
    } else {
        order_.resize(static_cast<std::size_t>(SourceCount()));
        std::iota(order_.begin(), order_.end(), 0);
    }
}

std::vector<int> JournalTable::StableOrder(const std::vector<qint64>& keys, bool ascending) {
    std::vector<int> rows(keys.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) {
        const qint64 ka = keys[static_cast<std::size_t>(a)], kb = keys[static_cast<std::size_t>(b)];
        return ascending ? ka < kb : ka > kb;
    });
    return rows;
}

std::vector<qint64> JournalTable::TextKeys(int count, const std::function<QString(int)>& text) {
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> sortKeys;
    sortKeys.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) sortKeys.push_back(collator.sortKey(text(i)));
    std::vector<int> byText(static_cast<std::size_t>(count));
    std::iota(byText.begin(), byText.end(), 0);
    const auto key = [&](int i) -> const QCollatorSortKey& { return sortKeys[static_cast<std::size_t>(i)]; };
    std::sort(byText.begin(), byText.end(), [&](int a, int b) { return key(a).compare(key(b)) < 0; });
    std::vector<qint64> keys(static_cast<std::size_t>(count));
    qint64 rank = 0;
    for (std::size_t i = 0; i < byText.size(); ++i) {
        if (i > 0 && key(byText[i - 1]).compare(key(byText[i])) != 0) ++rank;
        keys[static_cast<std::size_t>(byText[i])] = rank;
    }
    return keys;
}

namespace {

enum ResultColumn { ResultDate, ResultKind, ResultName, ResultSpread, ResultDeck, ResultCards };
enum CardColumn { CardTotal, CardUpright, CardReversed, CardCard, CardDeck, CardType };
enum LocationColumn { LocationNumber, LocationTitle, LocationCards };

QString Figure(int n) { return QLocale().toString(n); }

}  // namespace

JournalResultsModel::JournalResultsModel(const Journal& journal, const JournalCatalogue& catalogue, QObject* parent)
    : JournalTable({tr("Date"), tr("Kind"), tr("Name"), tr("Spread"), tr("Deck"), tr("Cards")}, {ResultCards}, parent),
      journal_(journal),
      catalogue_(catalogue),
      entriesInOrder_(2 * (ResultCards + 1)) {}

void JournalResultsModel::SetSelection(const std::vector<int>& selected) {
    Replace([&] { selected_ = selected; });
}

QString JournalResultsModel::Text(int source, int column) const {
    const JournalEntry& e = journal_.Entries[static_cast<std::size_t>(selected_[static_cast<std::size_t>(source)])];
    switch (column) {
    case ResultDate: return e.Date.isValid() ? QLocale().toString(e.Date, QLocale::ShortFormat) : QString();
    case ResultKind: return e.Kind == EntryKind::Reading ? tr("Reading") : tr("Diary");
    case ResultName: return e.Name;
    case ResultSpread: return EntrySpreadText(e, catalogue_);
    case ResultDeck: return EntryDeckText(e, catalogue_);
    case ResultCards: return e.Locked ? QString() : Figure(static_cast<int>(e.Cards.size()));
    default: return {};
    }
}

QString JournalResultsModel::ToolTip(int source, int column) const {
    const JournalEntry& e = journal_.Entries[static_cast<std::size_t>(selected_[static_cast<std::size_t>(source)])];
    if (column == ResultName && e.Locked) return tr("Locked: open it and give its password to see it");
    return {};
}

// A key for every entry of the journal.
std::vector<qint64> JournalResultsModel::EntryKeys(int column) const {
    const int count = static_cast<int>(journal_.Entries.size());
    const auto entry = [&](int i) -> const JournalEntry& { return journal_.Entries[static_cast<std::size_t>(i)]; };
    std::vector<qint64> keys;
    switch (column) {
    case ResultDate:
        for (int i = 0; i < count; ++i)
            keys.push_back(entry(i).Date.isValid() ? entry(i).Date.toJulianDay() : std::numeric_limits<qint64>::min());
        return keys;
    case ResultCards:
        for (int i = 0; i < count; ++i)
            keys.push_back(entry(i).Locked ? -1 : static_cast<qint64>(entry(i).Cards.size()));
        return keys;
    default:
        // The text each entry's cell shows.
        return TextKeys(count, [&](int i) {
            switch (column) {
            case ResultKind: return entry(i).Kind == EntryKind::Reading ? tr("Reading") : tr("Diary");
            case ResultName: return entry(i).Name;
            case ResultSpread: return EntrySpreadText(entry(i), catalogue_);
            default: return EntryDeckText(entry(i), catalogue_);
            }
        });
    }
}

const std::vector<int>& JournalResultsModel::EntriesInOrder(int column, bool ascending) const {
    std::vector<int>& entries = entriesInOrder_[static_cast<std::size_t>(2 * column + (ascending ? 0 : 1))];
    if (entries.size() != journal_.Entries.size()) entries = StableOrder(EntryKeys(column), ascending);
    return entries;
}

std::vector<int> JournalResultsModel::SortedRows(int column, bool ascending) const {
    // The selection is in file order, as is the journal: the entries in the
    // column's order, those selected kept, are the selection sorted.
    std::vector<int> rowOf(journal_.Entries.size(), -1);
    for (std::size_t row = 0; row < selected_.size(); ++row)
        rowOf[static_cast<std::size_t>(selected_[row])] = static_cast<int>(row);
    std::vector<int> rows;
    rows.reserve(selected_.size());
    for (const int entry : EntriesInOrder(column, ascending))
        if (rowOf[static_cast<std::size_t>(entry)] >= 0) rows.push_back(rowOf[static_cast<std::size_t>(entry)]);
    return rows;
}

JournalCardsModel::JournalCardsModel(QObject* parent)
    : JournalTable({tr("Total"), tr("Upright"), tr("Reversed"), tr("Card"), tr("Deck"), tr("Type")},
                   {CardTotal, CardUpright, CardReversed}, parent) {}

void JournalCardsModel::SetCards(const std::vector<CardTally>& cards) {
    Replace([&] { cards_ = cards; });
}

QString JournalCardsModel::Text(int source, int column) const {
    const CardTally& c = cards_[static_cast<std::size_t>(source)];
    switch (column) {
    case CardTotal: return Figure(c.Total());
    case CardUpright: return Figure(c.Upright);
    case CardReversed: return Figure(c.Reversed);
    case CardCard: return c.Title;
    case CardDeck: return c.DeckName;
    case CardType: return c.TypeName;
    default: return {};
    }
}

std::vector<int> JournalCardsModel::SortedRows(int column, bool ascending) const {
    if (column >= CardCard)
        return StableOrder(TextKeys(SourceCount(), [&](int i) { return Text(i, column); }), ascending);
    std::vector<qint64> keys;
    for (const CardTally& c : cards_)
        keys.push_back(column == CardTotal ? c.Total() : column == CardUpright ? c.Upright : c.Reversed);
    return StableOrder(keys, ascending);
}

JournalLocationsModel::JournalLocationsModel(QObject* parent)
    : JournalTable({tr("Location"), tr("Title"), tr("Cards Most Often There")}, {LocationNumber}, parent) {}

void JournalLocationsModel::SetLocations(std::vector<LocationTally> locations) {
    Replace([&] { locations_ = std::move(locations); });
}

QString JournalLocationsModel::Text(int source, int column) const {
    const LocationTally& l = locations_[static_cast<std::size_t>(source)];
    switch (column) {
    case LocationNumber: return Figure(l.Location);
    case LocationTitle: return l.Title;
    case LocationCards: {
        QStringList cards;
        for (const CardTally& c : l.Cards) cards << tr("%1: %2").arg(CardLabel(c), Figure(c.Total()));
        return cards.join(tr("; "));
    }
    default: return {};
    }
}

std::vector<int> JournalLocationsModel::SortedRows(int column, bool ascending) const {
    if (column != LocationNumber)
        return StableOrder(TextKeys(SourceCount(), [&](int i) { return Text(i, column); }), ascending);
    std::vector<qint64> keys;
    for (const LocationTally& l : locations_) keys.push_back(l.Location);
    return StableOrder(keys, ascending);
}
