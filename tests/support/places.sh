# Where the scripts that drive the window click: x and y from its top left corner, at its size at the start.

first_marker="36 208" # of a gradient from left to right
middle_of_track="328 208"
last_marker="620 208"
red="81 262" # the field; green and blue lie one and two rows below
row=34
orientation="580 262"
add_preset="920 47"
first_preset="730 102"
css_tab="375 375"
html_tab="425 375"
preview_tab="496 375"
copy="923 375"
code="500 620"
