#pragma once
// What every benchmark measures with: the median of timed runs, the
// machine's own baselines (a sequential read, a plain copy) and the rows
// that set a figure beside its goal.
#include <fcntl.h>
#include <unistd.h>
#include <QElapsedTimer>
#include <QString>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "core/platform/BinaryFile.h"
#include "core/records/Records.h"

namespace Bench {

// Runs of each figure; the first argument of a benchmark sets it.
inline int Runs = 5;

inline double Median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// Milliseconds of one call, median over the runs; prepare runs untimed
// before each call.
inline double Time(const std::function<void()>& work, const std::function<void()>& prepare = {}) {
    std::vector<double> ms;
    for (int i = 0; i < Runs; ++i) {
        if (prepare) prepare();
        QElapsedTimer clock;
        clock.start();
        work();
        ms.push_back(clock.nsecsElapsed() / 1e6);
    }
    return Median(ms);
}

// A sequential read of a file into a buffer.
inline void ReadOnce(const QString& path) {
    static std::vector<char> buffer(1 << 20);
    const int fd = ::open(path.toLocal8Bit().constData(), O_RDONLY);
    if (fd < 0) return;
    while (::read(fd, buffer.data(), buffer.size()) > 0) {
    }
    ::close(fd);
}

// A plain copy; waiting for the disk once at the end, as the program does
// when it rewrites a file, unless the copy stands for one that does not.
inline void CopyOnce(const QString& from, const QString& to, bool waitForDisk = true) {
    static std::vector<char> buffer(1 << 20);
    const int in = ::open(from.toLocal8Bit().constData(), O_RDONLY);
    const int out = ::open(to.toLocal8Bit().constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    ssize_t n;
    while ((n = ::read(in, buffer.data(), buffer.size())) > 0)
        if (::write(out, buffer.data(), static_cast<size_t>(n)) != n) break;
    if (waitForDisk) ::fsync(out);
    ::close(in);
    ::close(out);
}

inline void Row(const char* operation, double ms, const char* baselineName, double baselineMs, double goalRatio) {
    const double ratio = baselineMs > 0 ? ms / baselineMs : 0;
    std::printf("%-68s %9.2f ms | %-24s %9.2f ms | ratio %6.2f | goal %.1fx %s\n", operation, ms, baselineName,
                baselineMs, ratio, goalRatio, ratio <= goalRatio ? "met" : "MISSED");
}

// Writes a record file of many records in one go.
template <class R>
class Writer {
public:
    explicit Writer(const QString& path) : out_(path + QStringLiteral(".tmp"), path), bytes_(R::Length) {}
    void Add(const R& r) {
        EncodeRecord(r, bytes_.data());
        out_.Write(bytes_.data(), R::Length);
    }
    void Done() { out_.Commit(); }

private:
    AtomicFileWriter out_;
    std::vector<char> bytes_;
};

}  // namespace Bench
