# Prints orders for xdotool: a hundred random but valid actions in the program's window.
# Variables: seed, window (its id).

function random(low, high) { return low + int(rand() * (high - low + 1)) }
function one(list, size) { return list[random(1, size)] }
function to(x, y) { print "mousemove --window", window, int(x), int(y) + 20 } # below the menu bar

# To where a stop at that share of the track has its marker, as far as is known.
function to_stop(share) {
    if (orientation == 0) to(36 + 584 * share, 188) # in the order of the list
    else if (orientation == 1) to(41, 193 - 157 * share)
    else if (orientation == 2) to(36 + 584 * share, 193 - 157 * share)
    else if (orientation == 3) to(620 - 584 * share, 193 - 157 * share)
    else to(328 + 292 * share, 125)
}
function to_some_stop() { to_stop(stops[random(1, stop_count)]) }
function remember(share) { stops[++stop_count] = share }
function click(button) { print "click --delay 2", button }
function key(name) { print "key --delay 0", name }
function some_keys(i) { for (i = random(1, 4); i > 0; i--) key(one(keys, key_count)) }
function type_text() { print "type --delay 0 '" one(texts, text_count) "'" }

function drag(share) {
    share = rand()
    to_some_stop()
    print "mousedown 1 mousemove_relative --", random(-90, 90), random(-20, 20)
    to_stop(share)
    print "mouseup 1"
    remember(share)
}
function add(share) {
    to_stop(share)
    print "click --repeat 2 --delay 20 1"
    remember(share)
}
function edit_number() {
    if (random(0, 1)) to(81 + 147 * random(0, 1), 242 + 34 * random(0, 2)); else to(364, 242 + 34 * random(0, 1))
    print "click --repeat 3 --delay 10 1"
    type_text()
    some_keys()
}
function choose_orientation(i) {
    orientation = random(0, 4)
    to(580, 242)
    click(1)
    key("Home")
    for (i = 0; i < orientation; i++) key("Down")
    key("Return")
}
function choose_notation() {
    to(580, 276)
    click(1)
    some_keys()
    key("Return")
}
function in_code() {
    to(random(20, 950), random(380, 735))
    click(random(1, 5))
    type_text()
    some_keys()
}
function look_at_sheet() {
    to(random(0, 1) ? 697 : 898, 312)
    click(1)
    print "sleep 0.1 key Left key Tab key Escape"
}

BEGIN {
    srand(seed)
    key_count = split("Up Down Left Right Prior Next Home End Tab shift+Tab Delete BackSpace Return Escape space " \
                      "Insert ctrl+z ctrl+z ctrl+shift+z ctrl+n alt+e ctrl+a ctrl+c ctrl+v ctrl+x ctrl+Home ctrl+End shift+Left", keys, " ")
    text_count = split("0 1 7 128 255 256 300 -5 .5 0.333 1e3 999999999999 %x a{b:c} ; }", texts, " ")
    remember(0)
    remember(1)
    choose_orientation()
    for (done = 0; done < 100; done++) {
        kind = random(0, 15)
        if (kind <= 2) drag()
        else if (kind == 3) add(rand())
        else if (kind == 4) { to_some_stop(); click(3); print "sleep 0.05 key Down Return" } # "Delete Marker"
        else if (kind <= 6) edit_number()
        else if (kind == 7) { to(113 + 142 * random(0, 2), 237 + 34 * random(0, 2) + 10 * random(0, 1)); click(1) }
        else if (kind == 8) { if (random(0, 1)) choose_orientation(); else choose_notation() }
        else if (kind == 9) { to(923, 27); click(1) } # "Add Preset"
        else if (kind == 10) { to(random(700, 950), random(60, 270)); click(random(1, 5)); some_keys() }
        else if (kind == 11) { to(375 + 60 * random(0, 2), 355); click(1); some_keys() }
        else if (kind <= 13) in_code()
        else if (kind == 14) look_at_sheet()
        else { to(388, 310); click(1); print "sleep 0.1"; some_keys(); key("Escape") } # the colour dialog
        print "sleep 0.01"
    }
    print "key Escape key Escape sleep 0.1" # no menu or dialog stays open
    choose_orientation()
    add(0.9) # a gradient without a stop has no declarations to look at
}
