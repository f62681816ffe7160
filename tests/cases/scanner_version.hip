set -g _HIP_SAVEVERSION = '19.5.303'
set -g _HIP_SAVEVERSION = ''
_HIP_SAVEVERSION
set -g _HIP_SAVEVERSION = '18.0
node_HIP_SAVE 1
out/show.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/$_HIP_SAVEVERSION$JOB.$F4.exr"	)
}
