# Where the scripts that drive the window click: x and y from its top left corner, at its size at the start.

first_marker="36 188" # of a gradient from left to right
middle_of_track="328 188"
last_marker="620 188"
red="81 242" # the field; green and blue lie one and two rows below
row=34
orientation="580 242"
add_preset="920 27"
first_preset="730 82"
css_tab="375 355"
html_tab="425 355"
preview_tab="496 355"
copy="923 355"
code="500 600"
