#!/usr/bin/env bash
# ./test.sh        the quick tests
# ./test.sh all    all that is checked before a change lands
# ./test.sh bench  the benchmarks and the start of the program, as ratios within one run
# ./test.sh long   a million random acts under the sanitizers
# ./test.sh cycle  the Hebrew new years of the whole cycle of 689,472 years
# ./test.sh walk   every day of the Persian years -100 to 1600
source "$(dirname "$0")/tools/setup.sh"

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
    local forms=build/release/tests/horvanta_form_tests
    QT_QPA_PLATFORM=offscreen "$forms" -silent $("$forms" -functions -platform offscreen | tr -d '()' | tac)
}

# With a window manager, which is what gives windows the focus.
form_tests_on_a_display() {
    heading 'Forms on a virtual display'
    on_virtual_display sh -c 'openbox 2>/dev/null & QT_QPA_PLATFORM=xcb "$0" -silent' \
        build/release/tests/horvanta_form_tests
}

# What an installation holds, by the tools made for it.
packaging_checks() {
    heading 'Packaging'
    rm -rf build/staged
    cmake --install build/release --prefix build/staged >/dev/null
    [ -x build/staged/bin/horvanta ]
    desktop-file-validate build/staged/share/applications/*.desktop
    appstreamcli validate --no-net build/staged/share/metainfo/*.xml
}

need "${build_packages[@]}"
case "${1:-quick}" in
    quick) quick_tests ;;
    all)
        need "${display_packages[@]}" appstream clang-format desktop-file-utils locales openbox tzdata
        format_check
        quick_tests
        sanitized_tests
        locale_tests
        shuffled_tests
        form_tests_on_a_display
        packaging_checks
        ;;
    bench)
        need libbenchmark-dev libicu-dev "${display_packages[@]}"
        build bench
        build/bench/bench/horvanta_bench
        bench/start.sh build/bench
        ;;
    long)
        build sanitize
        HORVANTA_ACTS=1000000 build/sanitize/tests/horvanta_tests --gtest_filter='Desk.KeepsTheMoment*'
        ;;
    cycle)
        build release
        HORVANTA_WHOLE_CYCLE=1 build/release/tests/horvanta_tests --gtest_filter='Hebrew.LengthsOfYears*'
        ;;
    walk)
        build release
        HORVANTA_EVERY_DAY=1 build/release/tests/horvanta_tests --gtest_filter='Persian.DaysFollow*'
        ;;
    *)
        sed -n '2,7s/^# //p' test.sh
        exit 2
        ;;
esac
