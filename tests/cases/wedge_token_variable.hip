set -g _HIP_SAVEVERSION = '19.5.303'
set -g VARIANT = 'look_$WEDGE'
out/wedge1.parm {
wedgemethod	[ 0	locks=0 ]	(	"channel"	)
prefix	[ 0	locks=0 ]	(	"wedge"	)
driver	[ 0	locks=0 ]	(	"../mantra1"	)
name1	[ 0	locks=0 ]	(	"scale"	)
range1	[ 0	locks=0 ]	(	0	1	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/mantra1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/$VARIANT.$F4.exr"	)
}
