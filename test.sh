#!/usr/bin/env bash
# ./test.sh        the quick tests
# ./test.sh all    all that is checked before a change lands
# ./test.sh bench  the benchmarks and the start of the program, as ratios within one run
# ./test.sh long   random acts under the sanitizers; takes a seed and a number, else a million acts
# ./test.sh harm   starts on harmed settings, full disks, kills and locks, with figures; takes a share and a seed
# ./test.sh cycle  the Hebrew new years of the whole cycle of 689,472 years
# ./test.sh walk   Persian days, Oriental months and moonrises over the centuries, each one
source "$(dirname "$0")/tools/setup.sh"

form_tests=(build/release/tests/horvanta_{controls,keys,program,reach,reports,windows}_tests)

heading() { printf '\n== %s\n' "$1"; }

quick_tests() {
    heading 'Quick tests'
    build release
    ctest --preset release
}

format_check() {
    heading 'Format'
    git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run -Werror
}

floors_check() {
    heading 'Floors'
    tools/check_floors.sh
}

sanitized_tests() {
    heading 'Tests under the sanitizers'
    build sanitize
    ctest --preset sanitize
}

# Under a locale with a decimal comma, in the time zone farthest east.
locale_tests() {
    heading 'Tests under de_DE.UTF-8'
    mkdir -p build/locale
    [ -d build/locale/de_DE.UTF-8 ] || localedef -i de_DE -f UTF-8 build/locale/de_DE.UTF-8
    local there=(env "LOCPATH=$PWD/build/locale" LC_ALL=de_DE.UTF-8 TZ=Pacific/Kiritimati)
    [ "$("${there[@]}" locale decimal_point)" = , ] || { echo 'The locale has no decimal comma.' >&2; exit 1; }
    "${there[@]}" ctest --preset release
}

shuffled_tests() {
    heading 'Tests in another order'
    build/release/tests/horvanta_tests --gtest_shuffle --gtest_brief=1
    local forms
    for forms in "${form_tests[@]}"; do
        QT_QPA_PLATFORM=offscreen "$forms" -silent $("$forms" -functions -platform offscreen | tr -d '()' | tac)
    done
}

# With a window manager, which is what gives windows the focus.
form_tests_on_a_display() {
    heading 'Forms on a virtual display'
    on_virtual_display sh -c 'openbox 2>/dev/null & for t; do QT_QPA_PLATFORM=xcb "$t" -silent || exit; done' - \
        "${form_tests[@]}"
}

# Every report in every form, and one of odd texts, by readers that were not written here.
reports_check() {
    heading 'Report files'
    local folder=$PWD/build/reports item extension
    rm -rf "$folder" && mkdir -p "$folder"
    for item in ReportOmer ListPostpone19years ListPostpone1000years ListPossibleWeekdayStats; do
        for extension in htm tab csv; do
            printf '%s\n' "answer text $folder/$item.$extension" "menu $item" 'click ReportFinished.OKButton'
        done
    done | build/release/tools/desk/horvanta_desk >/dev/null
    HORVANTA_REPORTS=$folder build/release/tests/horvanta_tests --gtest_brief=1 --gtest_filter='ReportForms.*'
    python3 tests/reports/check_reports.py "$folder"
}

# Starts an installed program without a display, and on one for its picture, with settings of its own.
runs() {
    local home=build/package/home
    rm -rf "$home" && mkdir -p -m 700 "$home"
    [[ $(env -u DISPLAY "$1" --version) = 'Horvanta '* ]]
    env -u DISPLAY "$1" --nonsense 2>/dev/null && return 1 || [ $? -eq 2 ]
    on_virtual_display env XDG_CONFIG_HOME="$PWD/$home" XDG_RUNTIME_DIR="$PWD/$home" QT_QPA_PLATFORM=xcb \
        HORVANTA_SCREENSHOT="$home/picture.png" "$1"
    [ -s "$home/picture.png" ]
    grep -q '^Prog/Launch=OK' "$home/Horvanta/Horvanta.ini"
}

# The Debian package, and what it holds, by the tools made for it. Where that needs no password, it is also installed
# and removed, unless the machine has one already.
packaging_checks() {
    heading 'Packaging'
    rm -rf build/package
    cpack --preset release >/dev/null
    local deb=$(echo build/package/*.deb) tree=build/package/tree root=() file complaints
    lintian --allow-root --fail-on error,warning --suppress-tags initial-upload-closes-no-bugs "$deb" # for Debian's own
    dpkg-deb -x "$deb" "$tree"
    desktop-file-validate "$tree"/usr/share/applications/*.desktop
    appstreamcli validate --no-net "$tree"/usr/share/metainfo/*.xml
    complaints=$(man --warnings -E UTF-8 -l -Tutf8 -Z "$tree"/usr/share/man/man1/horvanta.1.gz 2>&1 >/dev/null)
    [ -z "$complaints" ] || { echo "$complaints" >&2; return 1; }
    runs "$tree/usr/bin/horvanta"

    [ "$(id -u)" -eq 0 ] || root=(sudo -n)
    if ! "${root[@]}" true 2>/dev/null || dpkg-query -W horvanta >/dev/null 2>&1; then
        echo 'The package is not installed for a test.'
        return
    fi
    trap "${root[*]} apt-get remove -y -qq horvanta >/dev/null" EXIT # whatever fails below
    "${root[@]}" apt-get install -y -qq --no-install-recommends "./$deb" >/dev/null
    runs /usr/bin/horvanta
    "${root[@]}" apt-get remove -y -qq horvanta >/dev/null
    trap - EXIT
    for file in $(cd "$tree" && find . -type f); do
        [ ! -e "/$file" ] || { echo "$file is left" >&2; return 1; }
    done
}

need "${build_packages[@]}"
case "${1:-quick}" in
    quick) quick_tests ;;
    all)
        need "${display_packages[@]}" appstream clang-format desktop-file-utils dpkg-dev file \
            lintian locales man-db openbox opensp python3 tzdata w3c-sgml-lib
        format_check
        floors_check
        quick_tests
        sanitized_tests
        locale_tests
        shuffled_tests
        form_tests_on_a_display
        reports_check
        packaging_checks
        ;;
    bench)
        need libbenchmark-dev libicu-dev "${display_packages[@]}"
        build bench
        build/bench/bench/horvanta_bench
        on_virtual_display build/bench/bench/horvanta_held_key
        bench/start.sh build/bench
        ;;
    long)
        build sanitize
        HORVANTA_SEED=${2:-5784} HORVANTA_ACTS=${3:-1000000} \
            build/sanitize/tests/horvanta_tests --gtest_filter='Desk.KeepsTheMoment*'
        ;;
    harm)
        need python3 xvfb
        build release
        python3 tests/harm/harm.py build/release/src/qt/horvanta "${2:-1}" "${3:-5784}"
        ;;
    cycle)
        build release
        HORVANTA_WHOLE_CYCLE=1 build/release/tests/horvanta_tests --gtest_filter='Hebrew.LengthsOfYears*'
        ;;
    walk)
        build release
        HORVANTA_EVERY_DAY=1 build/release/tests/horvanta_tests --gtest_filter='Calendars.MonthsAndDays*:MoonEvents.MissNoDay:Oriental.DatesAreThoseOfTheDefinitions'
        ;;
    *)
        sed -n '2,8s/^# //p' test.sh
        exit 2
        ;;
esac
