#include "update_script.h"

QString shellQuote(const QString& value)
{
    QString q = value;
    q.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + q + QLatin1Char('\'');
}

namespace {

// Shell functions shared by every script; the variables come first.
const char* const kBody = R"SH(
log() { printf '[update] %s\n' "$*" >&2; }

# Keeps a copy of what an entry will replace, or notes that it is new.
keep() {
    if [ -e "$dest/$1" ] || [ -L "$dest/$1" ]; then
        if [ "$2" = f ]; then
            mkdir -p "$backup/files/$(dirname "$1")" && cp -P -p "$dest/$1" "$backup/files/$1" || return 1
        fi
    else
        printf '%s\n' "$1" >> "$backup/created" || return 1
    fi
}

# Puts every replaced file back and removes what the update added.
restore() {
    [ -d "$backup/files" ] || return 0
    log "restoring the previous installation"
    (cd "$backup/files" && find . ! -type d) | while IFS= read -r f; do
        f=${f#./}
        rm -f "$dest/$f"
        mkdir -p "$(dirname "$dest/$f")"
        cp -P -p "$backup/files/$f" "$dest/$f" || log "could not restore $f"
    done
    if [ -f "$backup/created" ]; then
        tac "$backup/created" | while IFS= read -r f; do
            if [ -d "$dest/$f" ] && [ ! -L "$dest/$f" ]; then
                rmdir "$dest/$f" 2>/dev/null
            else
                rm -f "$dest/$f"
            fi
        done
    fi
}

overwrite() {
    [ -n "$payload" ] || return 1
    printf '%s  %s\n' "$payload_sha256" "$payload" | sha256sum -c --status - || { log "payload changed since it was verified"; return 1; }
    rm -rf "$backup" && mkdir -p "$backup/files" && : > "$backup/created" || return 1
    entries || return 1
    tar -x --no-same-owner --no-overwrite-dir -f "$payload" -C "$dest" || return 1
}

install_step() {
    if overwrite; then
        rm -f "$dest/update-failed.txt"
        return 0
    fi
    restore
    status=1
    if [ -n "$installer" ]; then
        case "$installer" in
            *.deb) dpkg -i "$installer" ;;
            *) chmod u+x "$installer" && "$installer" --silent ;;
        esac
        status=$?
    fi
    if [ "$status" -ne 0 ]; then
        echo "update did not finish; the program was NOT restarted" > "$dest/update-failed.txt"
        return 1
    fi
    return 0
}

if [ "$1" = --install ]; then
    install_step
    status=$?
    rm -rf "$backup"
    exit $status
fi

while [ "$pid" -gt 1 ] && kill -0 "$pid" 2>/dev/null; do sleep 1; done

if [ -n "$elevate" ]; then
    pkexec /bin/sh "$0" --install
else
    /bin/sh "$0" --install
fi
status=$?
if [ "$status" -ne 0 ]; then
    log "update did not finish; the program was NOT restarted"
    exit 1
fi
"$program" < /dev/null &
log "program restarted (pid $!)"
exit 0
)SH";

} // namespace

QByteArray linuxUpdateScript(const UpdateScriptPlan& plan)
{
    QString s = QStringLiteral("#!/bin/sh\n"
                               "# Installs a verified update once ZuvoAudioTools has exited.\n");
    s += QStringLiteral("pid=%1\n").arg(plan.pid);
    s += QStringLiteral("dest=%1\n").arg(shellQuote(plan.installDir));
    s += QStringLiteral("payload=%1\n").arg(shellQuote(plan.overwritePath));
    s += QStringLiteral("payload_sha256=%1\n").arg(shellQuote(plan.overwriteSha256.toLower()));
    s += QStringLiteral("installer=%1\n").arg(shellQuote(plan.installerPath));
    s += QStringLiteral("backup=%1\n").arg(shellQuote(plan.backupDir));
    s += QStringLiteral("program=%1\n").arg(shellQuote(plan.programPath));
    s += QStringLiteral("elevate=%1\n").arg(plan.elevate ? QStringLiteral("pkexec") : QStringLiteral("''"));
    s += QStringLiteral("\n# Every path the archive writes, parents first.\nentries() {\n");
    for (const QString& path : plan.writtenPaths) {
        const bool dir = plan.directoryPaths.contains(path);
        s += QStringLiteral("    keep %1 %2 || return 1\n").arg(shellQuote(path), dir ? QStringLiteral("d") : QStringLiteral("f"));
    }
    s += QStringLiteral("    return 0\n}\n");
    s += QString::fromUtf8(kBody);
    return s.toUtf8();
}
