frange 1 240 x
