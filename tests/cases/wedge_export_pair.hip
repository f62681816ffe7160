set -g _HIP_SAVEVERSION = '19.5.303'
out/wedge1.parm {
wedgemethod	[ 0	locks=0 ]	(	"channel"	)
prefix	[ 0	locks=0 ]	(	"wv"	)
driver	[ 0	locks=0 ]	(	"../m1"	)
name1	[ 0	locks=0 ]	(	"seed"	)
range1	[ 0	locks=0 ]	(	1	2	)
steps1	[ 0	locks=0 ]	(	2	)
}
out/m1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/$WEDGE/m1.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/m1_$WEDGENUM.$F4.ifd"	)
}
