frange -5 -1
