
frange 2 9
set -g JOB = '/p/ä'
take name T x