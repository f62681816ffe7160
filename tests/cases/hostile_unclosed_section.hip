set -g _HIP_SAVEVERSION = '19.5.303'
out/m1.parm {
camera	[ 0	locks=0 ]	(	/obj/cam1	)
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/m1.$F4.exr"	)
}
obj/cam1.parm {
res	[ 0	locks=0 ]	(	640	480	)
out/m2.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/m2.$F4.exr"	)
}
out/m3.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/m3.$F4.exr"	)
