set -g _hip_saveversion = ' 20.0.547.1 '
out/show.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/$OS.$F4.exr"	)
}
