set -g _HIP_SAVEVERSION = '19.5.303'
take name Main kids 0
out/m1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/$ACTIVETAKE/img.$F4.exr"	)
}
out/m2.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/plain.$F4.exr"	)
}
