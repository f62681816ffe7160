frange a 240 x
