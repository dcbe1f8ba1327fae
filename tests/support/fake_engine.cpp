#include "fake_engine.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "control/control_channel.h"

namespace {

std::string jsonQuote(const std::string& s)
{
    std::string out = "\"";
    for (unsigned char c : s) {
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (c < 0x20) {
                char buf[8];
                std::snprintf(buf, sizeof buf, "\\u%04x", c);
                out += buf;
            } else {
                out += static_cast<char>(c);
            }
        }
    }
    return out + "\"";
}

// Appends this run's arguments and returns the 1-based run number.
int recordArguments(const std::vector<std::string>& args)
{
    const char* path = std::getenv("ZUVO_FAKE_ARGS");
    if (!path || !*path)
        return 1;
    int previous = 0;
    {
        std::ifstream in(path);
        std::string line;
        while (std::getline(in, line))
            ++previous;
    }
    std::ofstream out(path, std::ios::app);
    out << '[';
    for (std::size_t i = 0; i < args.size(); ++i)
        out << (i ? "," : "") << jsonQuote(args[i]);
    out << "]\n";
    return previous + 1;
}

std::vector<std::string> scriptForRun(int run)
{
    std::vector<std::string> common, own;
    const char* path = std::getenv("ZUVO_FAKE_SCRIPT");
    if (!path || !*path)
        return {};
    std::ifstream in(path);
    std::string line;
    int section = 0;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.rfind("[run ", 0) == 0) {
            section = std::atoi(line.c_str() + 5);
            continue;
        }
        if (section == 0)
            common.push_back(line);
        else if (section == run)
            own.push_back(line);
    }
    bool hasOwn = false;
    std::ifstream again(path);
    while (std::getline(again, line))
        if (line.rfind("[run " + std::to_string(run) + "]", 0) == 0)
            hasOwn = true;
    return hasOwn ? own : common;
}

// A complete, minimal DSF: stereo DSD64, one 4096-byte block per channel of silence.
void writeDsf(const std::string& path)
{
    std::string b;
    const auto le = [&](unsigned long long v, int n) {
        for (int i = 0; i < n; ++i)
            b += static_cast<char>((v >> (8 * i)) & 0xFF);
    };
    const unsigned long long data = 2 * 4096;
    b += "DSD ";
    le(28, 8);
    le(92 + data, 8);
    le(0, 8);
    b += "fmt ";
    le(52, 8);
    for (unsigned v : {1u, 0u, 2u, 2u, 2822400u, 1u})
        le(v, 4);
    le(4096 * 8, 8);
    le(4096, 4);
    le(0, 4);
    b += "data";
    le(12 + data, 8);
    b.append(data, static_cast<char>(0x69));
    std::ofstream(path, std::ios::binary) << b;
}

std::string optionValue(const std::vector<std::string>& args, const std::string& name)
{
    for (std::size_t i = 1; i + 1 < args.size(); ++i)
        if (args[i] == name)
            return args[i + 1];
    return {};
}

} // namespace

int fake_engine_run(int argc, char** argv)
{
    std::vector<std::string> args(argv, argv + argc);
    // The window's capability query is not a run: answer it from
    // ZUVO_FAKE_REFUSED (comma-separated options) and record nothing.
    if (args.size() == 2 && args[1] == "--capabilities") {
        const char* refused = std::getenv("ZUVO_FAKE_REFUSED");
        std::istringstream list(refused ? refused : "");
        std::string option;
        while (std::getline(list, option, ','))
            if (!option.empty())
                std::printf("refused %s\n", option.c_str());
        // ZUVO_FAKE_SUPPORTED: options the fake says it offers.
        const char* supported = std::getenv("ZUVO_FAKE_SUPPORTED");
        std::istringstream offered(supported ? supported : "");
        while (std::getline(offered, option, ','))
            if (!option.empty())
                std::printf("supports %s\n", option.c_str());
        std::fflush(stdout);
        return 0;
    }
    const int run = recordArguments(args);
    const zuvo::InprocHostOptions host = zuvo::takeInprocHostOptions(args);
    zuvo::ControlListener control(host);
    control.start({});

    for (const std::string& line : scriptForRun(run)) {
        std::istringstream words(line);
        std::string cmd;
        words >> cmd;
        std::string rest;
        std::getline(words, rest);
        if (!rest.empty() && rest.front() == ' ')
            rest.erase(0, 1);

        if (cmd == "out") {
            std::printf("%s\n", rest.c_str());
            std::fflush(stdout);
        } else if (cmd == "err") {
            std::fprintf(stderr, "%s\n", rest.c_str());
            std::fflush(stderr);
        } else if (cmd == "raw") {
            std::printf("%s", rest.c_str());
            std::fflush(stdout);
        } else if (cmd == "sleep") {
            std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(rest.c_str())));
        } else if (cmd == "wait-stop") {
            int ms = 0, code = 195;
            std::istringstream(rest) >> ms >> code;
            const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
            while (std::chrono::steady_clock::now() < deadline) {
                if (control.stopRequested())
                    return code;
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
        } else if (cmd == "wait-line") {
            std::string word;
            int ms = 0, code = 0;
            std::istringstream(rest) >> word >> ms >> code;
            const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
            while (std::chrono::steady_clock::now() < deadline) {
                if (control.received(word))
                    return code;
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
        } else if (cmd == "log") {
            const std::string logPath = optionValue(args, "--log-file");
            if (!logPath.empty())
                std::ofstream(logPath, std::ios::app) << rest << '\n';
        } else if (cmd == "touch-output") {
            if (args.size() > 1)
                std::ofstream(args.back(), std::ios::binary) << "partial";
        } else if (cmd == "ignore-term") {
#ifndef _WIN32
            std::signal(SIGTERM, SIG_IGN);
#endif
        } else if (cmd == "flood") {
            // Buffered like a real engine's output: the host sees it in
            // whatever pieces the stream and the pipe make of it.
            long long count = 0;
            std::istringstream in(rest);
            in >> count >> std::ws;
            std::string text;
            std::getline(in, text);
            for (long long i = 0; i < count; ++i) {
                if (i % 1024 == 0 && control.stopRequested())
                    return 195;
                std::fprintf(stdout, "%s %lld\n", text.c_str(), i);
            }
            std::fflush(stdout);
        } else if (cmd == "long") {
            const std::string line(static_cast<std::size_t>(std::atoll(rest.c_str())), 'x');
            std::fwrite(line.data(), 1, line.size(), stdout);
            std::fputc('\n', stdout);
            std::fflush(stdout);
        } else if (cmd == "write-output") {
            if (args.size() > 1)
                writeDsf(args.back());
        } else if (cmd == "crash") {
            std::fflush(nullptr);
            std::abort();
        } else if (cmd == "exit") {
            return std::atoi(rest.c_str());
        }
    }
    return 0;
}
