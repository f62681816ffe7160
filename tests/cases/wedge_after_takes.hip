set -g _HIP_SAVEVERSION = '19.5.303'
take name Main kids 1
take name tk1 kids 0
out/wedge1.parm {
wedgemethod	[ 0	locks=0 ]	(	"channel"	)
prefix	[ 0	locks=0 ]	(	"w"	)
driver	[ 0	locks=0 ]	(	"/out/mE"	)
name1	[ 0	locks=0 ]	(	"s"	)
range1	[ 0	locks=0 ]	(	0	1	)
steps1	[ 0	locks=0 ]	(	2	)
}
out/mB.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/b.$F4.exr"	)
take	[ 0	locks=0 ]	(	tk1	)
}
out/mE.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/mE.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/mE.$F4.ifd"	)
}
