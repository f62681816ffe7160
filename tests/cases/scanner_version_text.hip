set -g _HIP_SAVEVERSION = 'x.5'
