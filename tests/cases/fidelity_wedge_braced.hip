frange 1 10
set -g _HIP_SAVEVERSION = '19.5.303'
set -g WDIR = 'render/${WEDGE}'
out/wedge1.parm {
wedgemethod	[ 0	locks=0 ]	(	"channel"	)
prefix	[ 0	locks=0 ]	(	"wedge"	)
driver	[ 0	locks=0 ]	(	"../mantra1"	)
name1	[ 0	locks=0 ]	(	"scale"	)
range1	[ 0	locks=0 ]	(	0	1	)
steps1	[ 0	locks=0 ]	(	2	)
}
out/mantra1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/$WDIR/img.$F4.exr"	)
}
