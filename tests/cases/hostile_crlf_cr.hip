set -g _HIP_SAVEVERSION = '19.5.303'
out/m1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/a.$F4.exr"	)
}
out/m2.parm {vm_picture	[ 0	locks=0 ]	(	"$HIP/r/b.$F4.exr"	)}