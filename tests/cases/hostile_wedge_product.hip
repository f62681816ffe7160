set -g _HIP_SAVEVERSION = '19.5.303'
out/wedge1.parm {
driver	[ 0	locks=0 ]	(	../m1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
steps1	[ 0	locks=0 ]	(	65536	)
name2	[ 0	locks=0 ]	(	rot	)
steps2	[ 0	locks=0 ]	(	32768	)
}
out/m1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/m1_$WEDGENUM.$F4.exr"	)
}
