# The rooms of host/hxahost from the top floor down: none includes one before it.
set(hxahost_rooms program fleet diff views proof machine collection result bundle terminal schema system text)
