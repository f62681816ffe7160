set -g _HIP_SAVEVERSION = '19.5.303'
out/karma1.parm {
picture	[ 0	locks=0 ]	(	"$HIP/render/k1.$F4.exr"	)
}
out/karma2.parm {
renderer	[ 0	locks=0 ]	(	HdArnoldRendererPlugin	)
picture	[ 0	locks=0 ]	(	"$HIP/render/k2.$F4.exr"	)
}
out/karma3.parm {
picture	[ 0	locks=0 ]	(	"$HIP/render/k3.$F4.exr"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/k3.$F4.ifd"	)
lopoutput	[ 0	locks=0 ]	(	"$HIP/usd/k3.$F4.usd"	)
}
