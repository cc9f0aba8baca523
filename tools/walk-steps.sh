# shellcheck shell=bash disable=SC2034,SC2154 # tools/walk sets what differs between the systems
# The steps of tools/walk, the same on every system, and their count. tools/walk sources it; it sets $main_title,
# $version and the places of the controls, and defines how the program starts and ends.

course='Šumarska čađ, đak i žbuka'
courses_before=$(($(wc -l <demo/db_kolegij.csv) - 1))
new_id=$((courses_before + 1)) # the demo catalogue numbers its courses from 1 without a gap

# --- Steps ---

passed=0
failed=0
pictures=0

# check WHAT COMMAND...
check() {
    local what=$1
    shift
    if "$@"; then
        echo "ok - $what"
        passed=$((passed + 1))
    else
        echo "not ok - $what"
        failed=$((failed + 1))
    fi
}

# shows WHAT TITLE [EXCEPT]: the window must open; otherwise the walk cannot go on.
shows() {
    if opens "$2" "${3:-}"; then
        check "$1" true
    else
        check "$1" false
        picture no-window
        exit 1
    fi
}

# picture WHAT: takes a picture of the screen.
picture() {
    pictures=$((pictures + 1))
    still_picture root "$pictures_folder/$(printf %02d $pictures)-$1.png"
}

# summary CODE: the last line; a walk that ended early has failed, with any count.
summary() {
    [[ $1 -eq 0 || $failed -gt 0 ]] || failed=1
    echo "$passed passed, $failed failed"
}

# --- Files ---

utf8() { iconv -f windows-1250 -t utf-8 "$1"; }
# Not grep -q: it ends before the text does, and then the pipe fails.
has_line() { utf8 "$1" | grep -x -F "$2"$'\r' >/dev/null; }
has_no_line() { test -f "$1" && ! utf8 "$1" | grep -x -E "$2"$'\r' >/dev/null; }
begins_with() { [[ $(utf8 "$1" | head -n 1) == "$2"$'\r' ]]; }
counts_lines() { [[ $(wc -l <"$1") -eq $2 ]]; }
every_line_ends_in_crlf() { [[ $(grep -c -a $'\r$' "$1") -eq $(wc -l <"$1") && $(tail -c 1 "$1") == "" ]]; }

# is_export FILE FIRST LINES: true for a text of so many lines, each with CR LF at its end.
is_export() { begins_with "$1" "$2" && counts_lines "$1" "$3" && every_line_ends_in_crlf "$1"; }

# catalogue_sum CONDITION: P;S;V;ECTS;courses of those lines of the exported catalogue for which awk's condition is
# true. It checks one export by another that follows other rules.
catalogue_sum() {
    utf8 "$exports/kolegiji_export.csv" | tr -d '\r' | awk -F ';' "
        NR > 1 && ($1) { p += \$6; s += \$7; v += \$8; e += \$9; n++ }
        END { printf \"%d;%d;%d;%d;%d\", p, s, v, e, n }"
}

# --- Moving about ---

# place NAME: puts the named place of the window into $x and $y.
place() { read -r x y <<<"${places[$1]}"; }

# click_at NAME [ROWS [KEY]]: clicks at a named place of $window, or so many rows below it, while the key is held.
click_at() {
    local x y
    place "$1"
    click "$x" $((y + ${2:-0} * ${row_height:-0})) "${3:-}"
}

# With the focus in the search box every access key of the main window works on both systems.
back_to_search() {
    window=$main
    focus "$main"
    click_at search
}

# search TEXT: searches the course list.
search() {
    back_to_search
    key Escape
    type_text "$1"
}

# field_text: the text of the focused field, copied by the clipboard.
field_text() {
    key ctrl+a ctrl+c
    timeout 5 xclip -o -selection clipboard 2>/dev/null
}

select_first_course() {
    window=$main
    focus "$main"
    click_at first_row
    key Home # the list keeps the place of the course that was selected
}

# first_course_is NAME: opens the course in the list's first row and reads its name.
first_course_is() {
    local name
    select_first_course
    key F2
    opens '^Kolegij$' || return 1
    name=$(field_text)
    [[ $name == "$1" ]] || echo "# the first course is '$name', not '$1'"
    key Escape
    closes '^Kolegij$' || return 1
    window=$main
    focus "$main"
    [[ $name == "$1" ]]
}

# save_into_exports TITLE PICTURE: takes the proposed name in a Save dialog, but in the folder of the exports.
save_into_exports() {
    # shellcheck disable=SC2001 # bash has no & for what was found
    shows "the Save dialog '$1'" "^$(sed 's/[()]/\\&/g' <<<"$1")\$"
    key Home
    type_text "$exports_typed"
    picture "${2}-save-dialog"
    key Return
}

# expect_message TITLE WHAT PICTURE [EXCEPT]: a message must be shown; Return closes it.
expect_message() {
    shows "$2" "$1" "${4:-}"
    picture "$3"
    key Return
}

# --- The walk ---

filter_search_and_sort() {
    window=$main
    picture main-window
    key shift+Tab shift+Tab Down Tab Tab # from the search box to the directions and back
    picture direction-chosen
    key shift+Tab shift+Tab Up Tab Tab

    search "tehničko crt"
    picture search
    check "the search finds a course by a part of its name" first_course_is 'Tehničko crtanje i CAD'
    back_to_search
    key Escape

    click_at name_header
    picture sorted
    check "the list sorts by name" first_course_is 'Baze podataka'
    click_at name_header
    picture sorted-down
    check "and the other way round, by the Croatian alphabet" first_course_is 'Željeznički i vodni prijevoz'
}

add_a_course() {
    back_to_search
    key alt+d
    shows "Dodaj opens the editor" '^Kolegij$'
    local editor=$window
    picture empty-editor
    key Return
    expect_message '^Kolegij$' "a course without a name is refused" empty-name-refused "$editor"
    window=$editor
    focus "$editor"
    type_text "$course"
    key Tab Tab Tab # past the level and the study
    type_text 2
    key Tab
    type_text 1
    key Tab
    type_text 0
    key Tab
    type_text 5
    key Tab
    type_text izborni
    row_height=$editor_row
    click_at semesters 1
    click_at directions
    click_at directions 2 ctrl
    click_at first_holder 3
    click_at second_holder 5
    picture filled-editor
    key alt+s
    check "Spremi closes the editor" closes '^Kolegij$'
    search "čađ, đak"
    picture course-added
    check "the course is in the list" first_course_is "$course"
}

edit_the_course() {
    search "čađ, đak"
    select_first_course
    key Return
    shows "Enter opens the course" '^Kolegij$'
    key End
    type_text " II"
    key Tab Tab Tab Tab Tab Tab # to the credits
    key ctrl+a
    type_text 6
    picture course-changed
    key alt+s
    check "Spremi closes the editor" closes '^Kolegij$'
    check "the new name is in the list" first_course_is "$course II"
}

delete_a_course() {
    search "povijest teh"
    select_first_course
    key Delete
    shows "Delete asks first" '^Potvrda$'
    picture delete-question
    key alt+n
    check "No closes the question" closes '^Potvrda$'
    check "and keeps the course" first_course_is 'Povijest tehnike'
    select_first_course
    key Delete
    shows "Delete asks again" '^Potvrda$'
    key alt+y
    check "Yes closes the question" closes '^Potvrda$'
    picture course-deleted
    back_to_search
    key Escape
}

export_the_catalogue() {
    local file=$exports/kolegiji_export.csv
    back_to_search
    key alt+k
    save_into_exports 'Spremi export (CSV)' catalogue
    expect_message '^Varlostudiji$' "the program says where the catalogue is" catalogue-exported
    check "the catalogue has a header and a line per course" is_export "$file" \
        'ID_kolegij;Nositelj1;Nositelj2;Nositelj3;Kolegij;P;S;V;ECTS;Smjer;O_I;Program;Semestar;P_D' \
        $((courses_before + 1))
    check "the new course is in it" has_line "$file" \
        "$new_id;Cindrek Lucija;Črnković Željka;;$course II;2;1;0;6;TL, KG;izborni;LOR;2;Preddiplomski"

    local before
    before=$(sha256sum "$file")
    back_to_search
    key alt+k
    save_into_exports 'Spremi export (CSV)' catalogue-again
    shows "a question comes before a file is replaced" '^Potvrda$'
    picture replace-question
    key Return
    shows "No, its default, brings the dialog back" '^Spremi export'
    key Escape
    check "the dialog goes without an export" closes '^Spremi export'
    check "and the file that is there stays" test "$(sha256sum "$file")" = "$before"
}

export_the_semesters() {
    local file=$exports/statistika_Preddiplomski_LOR_TL_Svi.csv
    back_to_search
    key shift+Tab shift+Tab Down Tab Tab
    key alt+s
    save_into_exports 'Spremi statistiku (CSV)' semesters
    expect_message '^Varlostudiji$' "the program says where the sums are" semesters-exported
    check "the sums bear the filters in their name and hold every row" is_export "$file" 'sep=;' 22
    check "the chosen direction is in the file" has_line "$file" 'Smjer;TL'
    check "their total is that of the catalogue" has_line "$file" "TOTAL;Sve;$(
        catalogue_sum '$12 == "LOR" && $14 == "Preddiplomski" && $10 ~ /(^|, )TL(,|$)/')"
    back_to_search
    key shift+Tab shift+Tab Up Tab Tab
}

lecturers() {
    local file=$exports/statistika_svi_nastavnici.csv
    back_to_search
    key alt+n
    shows "Nositelji opens its window" '^Nostielji$'
    local statistics=$window
    row_height=$lecturer_row click_at first_lecturer 3
    picture lecturer-statistics
    key alt+x
    save_into_exports 'Spremi statistiku nastavnika' lecturers
    expect_message '^Izvoz završen$' "the program says where the load is" lecturers-exported
    check "sixteen lines a lecturer after the header" is_export "$file" \
        'Nastavnik;Semestar;Tip;P;S;V;ECTS;Broj kolegija' $((16 * ($(wc -l <demo/db_nastavnici.csv) - 1) + 1))
    check "the new course counts for its holder" has_line "$file" "Cindrek Lucija;TOTAL;Sve;$(
        catalogue_sum '$2 == "Cindrek Lucija" || $3 == "Cindrek Lucija" || $4 == "Cindrek Lucija"')"
    window=$statistics
    focus "$statistics"
    key alt+z
    check "Zatvori closes the window" closes '^Nostielji$'
}

departments() {
    local file=$exports/statistika_svi_zavodi.csv
    back_to_search
    key alt+z
    shows "Zavodi opens its window" '^Zavodi$'
    local statistics=$window
    picture department-statistics
    click_at winter
    picture winter-semesters
    key alt+x
    save_into_exports 'Spremi statistiku zavoda' departments
    expect_message '^Izvoz završen$' "the program says where the load is" departments-exported
    check "sixteen lines a department after the header" is_export "$file" \
        'Zavod;Semestar;Tip;P;S;V;ECTS;Broj kolegija' $((16 * ($(wc -l <demo/db_zavod.csv) - 1) + 1))
    check "the winter's export has no summer" has_no_line "$file" '[^;]*;[246];(Obvezni|Izborni);.*[1-9].*'
    window=$statistics
    focus "$statistics"
    key alt+z
    check "Zatvori closes the window" closes '^Zavodi$'
}

calculator() {
    local file="$exports/Račun za logistiku.csv"
    back_to_search
    key alt+c
    shows "ECTS opens the calculator" '^ECTS račun$'
    local calculator=$window
    picture empty-calculator
    # In tab order; the self-study hours are proposed when the contact hours are left.
    type_text "Račun za logistiku"
    key Tab
    type_text "Šarić-Žužul Đurđica; Anić Marija"
    key Tab
    type_text "zimski semestar"
    key Tab
    type_text 45
    key Tab Tab
    type_text 15
    key Tab Tab
    type_text 30
    key Tab Tab Tab
    type_text 120
    key Tab
    picture filled-calculator
    key alt+x
    save_into_exports 'Spremi CSV izvještaj' calculator
    expect_message '^Export$' "the program says that the report is there" report-saved
    check "the report has fifty lines" is_export "$file" 'ECTS račun' 50
    check "a field with a semicolon is quoted" has_line "$file" \
        'Nositelj(i);"Šarić-Žužul Đurđica; Anić Marija"'
    check "seminars take an hour of self-study each" has_line "$file" 'Seminari;15;15.0'
    check "150.9 hours are 5.03 points" has_line "$file" 'ECTS bodovi;5.03'
    window=$calculator
    focus "$calculator"
    key alt+z
    check "Zatvori closes the window" closes '^ECTS račun$'
}

about() {
    back_to_search
    key alt+p
    shows "O prog... opens the About box" '^About Varlostudiji$'
    picture about
    about_links
    key Escape
    check "Escape closes the About box" closes '^About Varlostudiji$'
}

leave() {
    back_to_search
    key alt+i
    check "Izlaz ends the program with code 0" ended_well
    check "the new course is on disk" has_line "$data/db_kolegij.csv" "$new_id;$course II;2;1;0;6;izborni;2;1"
    check "with its first direction" has_line "$data/db_kolegij_smjer.csv" "$new_id;1"
    check "and its second" has_line "$data/db_kolegij_smjer.csv" "$new_id;3"
    check "its first holder" has_line "$data/db_kolegij_nastavnik.csv" "$new_id;4;Nositelj;1"
    check "and its second" has_line "$data/db_kolegij_nastavnik.csv" "$new_id;6;Nositelj;2"
    check "the deleted course is not" has_no_line "$data/db_kolegij.csv" '26;.*'
    check "nor its direction" has_no_line "$data/db_kolegij_smjer.csv" '26;.*'
    check "nor its holder" has_no_line "$data/db_kolegij_nastavnik.csv" '26;.*'
    check "the former catalogue is kept whole in one copy" diff -rq demo "$data"/kopije/*
    check "a table without a change is as it was" cmp -s demo/db_nastavnici.csv "$data/db_nastavnici.csv"
}

start_again() {
    local before
    before=$(sha256sum "$data"/*.csv)
    start_program
    shows "the program opens again" "$main_title"
    main=$window
    use_croatian_keyboard
    search "čađ, đak"
    picture course-still-there
    check "the course is still there" first_course_is "$course II"
    back_to_search
    key alt+i
    check "Izlaz ends the program" ended_well
    check "a visit without a change leaves every file as it was" test "$(sha256sum "$data"/*.csv)" = "$before"
}

# A day's work by keyboard alone, with its keys counted.

press() { keys=$((keys + $#)) && key "$@"; }
write() { keys=$((keys + ${#1})) && type_text "$1"; }

save_editor() {
    press alt+s
    closes '^Kolegij$' && focus "$main"
}

set_credits() {
    press F2
    opens '^Kolegij$' || return 1
    press Tab Tab Tab Tab Tab Tab ctrl+a
    write "$1"
    save_editor
}

# add_by_keyboard NAME: a course of the first semester, direction and lecturer.
add_by_keyboard() {
    local number
    press ctrl+n
    opens '^Kolegij$' || return 1
    write "$1"
    press Tab Tab
    for number in 2 1 0 5; do
        press Tab
        write "$number"
    done
    press Tab
    write obvezni
    press Tab Down Tab Down Tab Down
    save_editor
}

delete_by_keyboard() {
    press Delete
    opens '^Potvrda$' || return 1
    press alt+y
    closes '^Potvrda$' && focus "$main"
}

# look_up TEXT NAME: true if the first course found by the text has this name.
look_up() {
    local name
    press ctrl+f
    write "$1"
    press Return F2
    opens '^Kolegij$' || return 1
    name=$(field_text)
    press Escape
    closes '^Kolegij$' && focus "$main" && [[ $name == "$2" ]]
}

# Adds, changes, deletes and looks up five courses each; no key is needed to find the place in the list again.
day_by_keyboard() {
    local keys=0 i before
    before=$(mktemp)
    cp "$data/db_kolegij.csv" "$before"
    start_program
    shows "the program opens for a day's work" "$main_title"
    main=$window
    use_croatian_keyboard
    press Return # from the search box to the first course
    for i in 1 2 3 4 5; do
        check "course $i of the day is added" add_by_keyboard "Novi $i"
        check "the new course is selected, and changed" set_credits 8
    done
    press Home
    for i in 1 2 3 4 5; do
        check "course $i is changed" set_credits 9
        press Down
    done
    for i in 6 7 8 9 10; do
        check "course $i is deleted" delete_by_keyboard
    done
    check "a course is found" look_up 'baze' 'Baze podataka'
    check "another is found" look_up 'crtanje' 'Tehničko crtanje i CAD'
    check "a third is found" look_up 'vodni' 'Željeznički i vodni prijevoz'
    check "a fourth is found" look_up 'novi 3' 'Novi 3'
    check "a fifth is found" look_up 'novi 5' 'Novi 5'
    picture day-done
    press alt+i
    check "Izlaz ends the program" ended_well
    check "the file holds the whole day's work" day_is_saved "$before"
    rm "$before"
    echo "# keys pressed in the day: $keys"
}

# day_is_saved FORMER: true if the file of courses has the former courses without the deleted ones, the five changed
# ones with nine credits, and the new ones.
day_is_saved() {
    diff <(
        awk -F ';' -v OFS=';' '$1 >= 6 && $1 <= 10 { next } $1 >= 1 && $1 <= 5 { $6 = 9 } { print }' "$1"
        for i in 1 2 3 4 5; do printf '%d;Novi %d;2;1;0;8;obvezni;1;1\r\n' $((new_id + i)) "$i"; done
    ) "$data/db_kolegij.csv"
}

# through_the_program: from the first look at the catalogue to the last.
through_the_program() {
    mkdir -p "$exports"
    start_program
    check "the splash opens first" splash_shown
    shows "the main window follows" "$main_title"
    main=$window
    use_croatian_keyboard
    filter_search_and_sort
    add_a_course
    edit_the_course
    delete_a_course
    export_the_catalogue
    export_the_semesters
    lecturers
    departments
    calculator
    about
    leave
    start_again
    day_by_keyboard
}

# splash_shown: the splash is shown for a second, too short to wait for a still picture.
splash_shown() {
    splash=$(wait_for '^Varlostudiji$' "$window_wait") || return 1
    pictures=$((pictures + 1))
    timeout 10 import -window root "$pictures_folder/$(printf %02d $pictures)-splash.png"
}
