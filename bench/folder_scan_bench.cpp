// How long adding a large folder to the queue takes: the recursive scan,
// the duplicate check against what is queued, and filling the list widget.
// Usage: folder_scan_bench FOLDER [REPEATS]
#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "audio_files.h"
#include "file_list_widget.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: folder_scan_bench FOLDER [REPEATS]\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const int repeats = argc > 2 ? std::max(1, std::atoi(argv[2])) : 5;
    std::vector<double> scanMs, planMs, listMs;
    qsizetype files = 0;
    for (int r = 0; r < repeats; ++r) {
        FileListWidget list;
        QElapsedTimer t;
        t.start();
        const QStringList found = scanAudioFiles(folder);
        scanMs.push_back(t.nsecsElapsed() / 1e6);
        t.restart();
        const QueueAddition plan = planQueueAddition(list.paths(), found);
        planMs.push_back(t.nsecsElapsed() / 1e6);
        t.restart();
        list.appendPaths(plan.added);
        listMs.push_back(t.nsecsElapsed() / 1e6);
        files = plan.added.size();
    }
    const auto median = [](std::vector<double> v) {
        std::sort(v.begin(), v.end());
        return v[v.size() / 2];
    };
    std::printf("files=%lld scan=%.1f ms plan=%.1f ms list=%.1f ms total=%.1f ms (median of %d)\n",
                static_cast<long long>(files), median(scanMs), median(planMs), median(listMs),
                median(scanMs) + median(planMs) + median(listMs), repeats);
    return 0;
}
