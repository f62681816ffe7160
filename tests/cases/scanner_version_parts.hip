set -g _hip_saveversion = ' 20.0.547.1 '
