# Where the scripts that drive the window click: x and y from its top left corner, at its size at the start.

first_marker="36 208" # of a gradient from left to right
middle_of_track="328 208"
last_marker="620 208"
red="81 262" # the field; green and blue lie one and two rows below
row=34
orientation="580 262"
add_preset="891 47"
first_preset="692 102"
css_tab="360 375"
html_tab="410 375"
preview_tab="481 375"
copy="894 375"
code="500 620"
