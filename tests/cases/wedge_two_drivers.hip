set -g _HIP_SAVEVERSION = '19.5.303'
out/wedgeA.parm {
wedgemethod	[ 0	locks=0 ]	(	"channel"	)
prefix	[ 0	locks=0 ]	(	"a"	)
driver	[ 0	locks=0 ]	(	"../m1"	)
name1	[ 0	locks=0 ]	(	"x"	)
range1	[ 0	locks=0 ]	(	0	1	)
steps1	[ 0	locks=0 ]	(	2	)
}
out/wedgeB.parm {
wedgemethod	[ 0	locks=0 ]	(	"channel"	)
prefix	[ 0	locks=0 ]	(	"b"	)
driver	[ 0	locks=0 ]	(	"../m1"	)
name1	[ 0	locks=0 ]	(	"y"	)
range1	[ 0	locks=0 ]	(	0	1	)
steps1	[ 0	locks=0 ]	(	2	)
}
out/m1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m1.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/m1_$WEDGENUM.$F4.ifd"	)
}
