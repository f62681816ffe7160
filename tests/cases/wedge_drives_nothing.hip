set -g _HIP_SAVEVERSION = '19.5.303'
out/wedge1.parm {
wedgemethod	[ 0	locks=0 ]	(	"channel"	)
prefix	[ 0	locks=0 ]	(	"w"	)
driver	[ 0	locks=0 ]	(	"/out/missing"	)
name1	[ 0	locks=0 ]	(	"s"	)
range1	[ 0	locks=0 ]	(	0	1	)
steps1	[ 0	locks=0 ]	(	2	)
}
out/wedge2.parm {
wedgemethod	[ 0	locks=0 ]	(	"script"	)
prefix	[ 0	locks=0 ]	(	"w"	)
driver	[ 0	locks=0 ]	(	"../mantra1"	)
name1	[ 0	locks=0 ]	(	"s"	)
range1	[ 0	locks=0 ]	(	0	1	)
steps1	[ 0	locks=0 ]	(	2	)
}
out/mantra1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/img_$WEDGENUM.$F4.exr"	)
}
