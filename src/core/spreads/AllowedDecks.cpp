#include "core/spreads/AllowedDecks.h"

#include <QCoreApplication>

#include <algorithm>

#include "core/records/RecordFile.h"
#include "core/store/RunState.h"

QString SpreadDeckLimitProblem(int tied) {
    if (tied < MaxSpreadDecks) return QString();
    return QCoreApplication::translate("AllowedDecks", "The maximum number of decks allowed cannot exceed %1.")
        .arg(MaxSpreadDecks);
}

bool IsSoleDeckOfASpread(Integer deckId) {
    RecordReader<SpreadRecord> reader(TheRun.Paths.SpreadsPath);
    SpreadRecord spread;
    while (reader.Next(spread))
        if (spread.AllowedDeckCount == 1 && spread.AllowedDeckId[0] == deckId) return true;
    return false;
}

void RemoveDeckFromSpreads(Integer deckId) {
    RecordEdit<SpreadRecord> changed(TheRun.Paths.SpreadsPath);
    {
        RecordReader<SpreadRecord> reader(TheRun.Paths.SpreadsPath);
        SpreadRecord spread;
        while (reader.Next(spread)) {
            auto& ids = spread.AllowedDeckId;
            const int allowed = spread.AllowedDeckCount;
            const int used = allowed > 0 ? std::min<int>(allowed, 10) : 0;
            int at = -1;
            for (int i = 0; i < used && at < 0; ++i)
                if (ids[static_cast<std::size_t>(i)] == deckId) at = i;
            if (at < 0) continue;
            for (int i = at; i < 9; ++i) ids[static_cast<std::size_t>(i)] = ids[static_cast<std::size_t>(i + 1)];
            ids[9] = -1;
            spread.AllowedDeckCount = static_cast<Integer>(spread.AllowedDeckCount - 1);
            changed.Put(reader.Current(), spread);
        }
    }
    changed.Commit();
}
