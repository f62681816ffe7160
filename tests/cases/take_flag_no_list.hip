set -g _HIP_SAVEVERSION = '19.5.303'
out/m1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/$ACTIVETAKE/img.$F4.exr"	)
}
