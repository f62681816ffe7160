set -g _HIP_SAVEVERSION = '21'
out/show.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/$OS.$F4.exr"	)
}
